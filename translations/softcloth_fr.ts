<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>LensFlare section hot key</name>
    <message>
        <source>[Hot Key] Physics</source>
        <translation>[Raccourci] Physique</translation>
    </message>
</context>
<context>
    <name>MV::CEditedMaterial</name>
    <message>
        <source>There is no material to edit</source>
        <translation>Il n’y a aucun matériau à modifier</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothMaterialDlg</name>
    <message>
        <source>InValid File Path.</source>
        <translation>Le chemin du fichier n’est pas valide.</translation>
    </message>
    <message>
        <source>File is Unreadable.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. </source>
        <translation>Le maillage de tissu généré dépasse la limite de 20 000 sommets. Veuillez essayer une autre image valide. </translation>
    </message>
    <message>
        <source>This image would create a soft cloth without any physics effect,
 because all the vertices of cloth mesh were set as zero weighting
( black color ). Please modify the gray map or load other valid images.</source>
        <translation>Cette image créerait un tissu souple sans aucun effet physique,
 car tous les sommets du maillage auraient un poids nul
(noir). Veuillez modifier l’image en niveaux de gris ou charger d’autres images valides.</translation>
    </message>
    <message>
        <source>Failed to save weight image.</source>
        <translation>L’image de poids n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>Failed to launch image editor.</source>
        <translation>L’éditeur d’images n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>Diffuse Uv Texture does not exist.</source>
        <translation>La texture UV diffuse n’existe pas.</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothMaterialTable</name>
    <message>
        <source> </source>
        <comment>MVPhysicsSoftClothSection Material Table �Ĥ@���W��</comment>
        <translation> </translation>
    </message>
    <message>
        <source>Mesh</source>
        <comment>MVPhysicsSoftClothSection Material Table �ĤG���W��</comment>
        <translation>Maillage</translation>
    </message>
    <message>
        <source>Material Name</source>
        <comment>MVPhysicsSoftClothSection Material Table �ĤT���W��</comment>
        <translation>Nom du matériau</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothPresetSection</name>
    <message>
        <source>File is Unreadable.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>InValid File Path.</source>
        <translation>Le chemin du fichier n’est pas valide.</translation>
    </message>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>Charger un profil personnalisé de tissu souple</translation>
    </message>
    <message>
        <source>INI Files (*.ini)</source>
        <translation>Fichiers INI (*.ini)</translation>
    </message>
    <message>
        <source>Save Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>Enregistrer un profil personnalisé de tissu souple</translation>
    </message>
    <message>
        <source>File is Unwritable.</source>
        <translation>Le fichier ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Load Soft Ini Profile</source>
        <comment>Open File title</comment>
        <translation>Charger un profil INI de tissu souple</translation>
    </message>
    <message>
        <source>[Hot Key] Modify</source>
        <comment>Modify Panel hot key</comment>
        <translation>[Raccourci] Modifier</translation>
    </message>
    <message>
        <source>[Hot Key] Physics</source>
        <comment>LensFlare section hot key</comment>
        <translation>[Raccourci] Physique</translation>
    </message>
    <message>
        <source>This object does not have any valid material enabling to create soft cloth.</source>
        <translation>Cet objet n’a aucun matériau valide permettant de créer un tissu souple.</translation>
    </message>
    <message>
        <source>This object has multiple materials.
 Please select a material and load a gray map image.</source>
        <translation>Cet objet a plusieurs matériaux.
 Veuillez choisir un matériau et charger une image en niveaux de gris.</translation>
    </message>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <comment>Message Title</comment>
        <translation>[Physique du tissu souple] Movira 6</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothWindSection</name>
    <message>
        <source>from %1</source>
        <translation>de %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>à %1</translation>
    </message>
</context>
<context>
    <name>Message Title</name>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <translation>[Physique du tissu souple] Movira 6</translation>
    </message>
</context>
<context>
    <name>Modify Panel hot key</name>
    <message>
        <source>[Hot Key] Modify</source>
        <translation>[Raccourci] Modifier</translation>
    </message>
</context>
<context>
    <name>Open File title</name>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <translation>Charger un profil personnalisé de tissu souple</translation>
    </message>
</context>
<context>
    <name>SoftClothCollision</name>
    <message>
        <source>Fold or unfold the collision settings</source>
        <translation>Plier ou déplier les réglages de collision</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>Collision</translation>
    </message>
    <message>
        <source>The cloth is stopped by rigid bodies instead of passing through them</source>
        <translation>Les corps rigides arrêtent le tissu au lieu de le laisser passer à travers eux</translation>
    </message>
    <message>
        <source>Soft vs. Rigid Collision</source>
        <translation>Collision souple/rigide</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units</source>
        <translation>Distance que le tissu garde avec les corps rigides, en unités de la scène</translation>
    </message>
    <message>
        <source>&amp;Collision Margin</source>
        <translation>&amp;Marge de collision</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units. A larger margin keeps fast cloth from slipping through.</source>
        <translation>Distance que le tissu garde avec les corps rigides, en unités de la scène. Une marge plus grande empêche un tissu rapide de passer à travers.</translation>
    </message>
    <message>
        <source>Rigid collision margin</source>
        <translation>Marge de collision rigide</translation>
    </message>
    <message>
        <source>Folds of the cloth push each other apart instead of passing through; costs simulation time</source>
        <translation>Les plis du tissu se repoussent au lieu de se traverser ; coûte du temps de calcul</translation>
    </message>
    <message>
        <source>Self Collision</source>
        <translation>Autocollision</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units</source>
        <translation>Distance que les plis du tissu gardent entre eux, en unités de la scène</translation>
    </message>
    <message>
        <source>Self Collisio&amp;n Margin</source>
        <translation>Marge d’autoco&amp;llision</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units. Too large a margin makes the cloth look thick.</source>
        <translation>Distance que les plis du tissu gardent entre eux, en unités de la scène. Une marge trop grande fait paraître le tissu épais.</translation>
    </message>
    <message>
        <source>Self collision margin</source>
        <translation>Marge d’autocollision</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialDlg</name>
    <message>
        <source>Soft Cloth Weight Map</source>
        <translation>Carte de poids du tissu souple</translation>
    </message>
    <message>
        <source>&amp;Materials</source>
        <translation>&amp;Matériaux</translation>
    </message>
    <message>
        <source>Materials of the object that take part in the soft cloth. The chosen one is edited here and in the panel.</source>
        <translation>Matériaux de l’objet qui participent au tissu souple. Celui qui est choisi est modifié ici et dans le panneau.</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Matériaux</translation>
    </message>
    <message>
        <source>Choose a material by clicking it in the viewport; Escape ends picking</source>
        <translation>Choisir un matériau en cliquant dessus dans la vue ; Échap met fin au prélèvement</translation>
    </message>
    <message>
        <source>&amp;Pick Material</source>
        <translation>&amp;Prélever un matériau</translation>
    </message>
    <message>
        <source>Decide in a table which materials take part in the soft cloth</source>
        <translation>Décider dans un tableau quels matériaux participent au tissu souple</translation>
    </message>
    <message>
        <source>Material &amp;Table...</source>
        <translation>&amp;Tableau des matériaux...</translation>
    </message>
    <message>
        <source>Weight Image</source>
        <translation>Image de poids</translation>
    </message>
    <message>
        <source>Diffuse texture of the material</source>
        <translation>Texture diffuse du matériau</translation>
    </message>
    <message>
        <source>Diffuse texture</source>
        <translation>Texture diffuse</translation>
    </message>
    <message>
        <source>&amp;Diffuse</source>
        <translation>&amp;Diffuse</translation>
    </message>
    <message>
        <source>Opacity texture of the material</source>
        <translation>Texture d’opacité du matériau</translation>
    </message>
    <message>
        <source>Opacity texture</source>
        <translation>Texture d’opacité</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>&amp;Opacité</translation>
    </message>
    <message>
        <source>Weight image of the material: black holds the vertices, lighter grays let them move. Drop an image file here, or double-click to choose one.</source>
        <translation>Image de poids du matériau : le noir retient les sommets, les gris plus clairs les laissent bouger. Déposez ici un fichier image, ou double-cliquez pour en choisir un.</translation>
    </message>
    <message>
        <source>Weight image</source>
        <translation>Image de poids</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>Po&amp;ids</translation>
    </message>
    <message>
        <source>The chosen texture, enlarged</source>
        <translation>La texture choisie, agrandie</translation>
    </message>
    <message>
        <source>Preview of the chosen texture</source>
        <translation>Aperçu de la texture choisie</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>File that the weight image is linked to</source>
        <translation>Fichier auquel l’image de poids est liée</translation>
    </message>
    <message>
        <source>File of the weight image</source>
        <translation>Fichier de l’image de poids</translation>
    </message>
    <message>
        <source>No linked file</source>
        <translation>Aucun fichier lié</translation>
    </message>
    <message>
        <source>Show the folder of the weight image&apos;s file</source>
        <translation>Montrer le dossier du fichier de l’image de poids</translation>
    </message>
    <message>
        <source>Open Folde&amp;r</source>
        <translation>Ou&amp;vrir le dossier</translation>
    </message>
    <message>
        <source>Load an image file as the weight image</source>
        <translation>Charger un fichier image comme image de poids</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>C&amp;harger...</translation>
    </message>
    <message>
        <source>Save the weight image to a file</source>
        <translation>Enregistrer l’image de poids dans un fichier</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>En&amp;registrer...</translation>
    </message>
    <message>
        <source>Take the weight image away from the material</source>
        <translation>Retirer l’image de poids du matériau</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep the weight image inside the material instead of linking its file</source>
        <translation>Garder l’image de poids dans le matériau au lieu de lier son fichier</translation>
    </message>
    <message>
        <source>&amp;Embed</source>
        <translation>I&amp;ncorporer</translation>
    </message>
    <message>
        <source>Edit the chosen texture in the external image editor</source>
        <translation>Modifier la texture choisie dans l’éditeur d’images externe</translation>
    </message>
    <message>
        <source>Ed&amp;it</source>
        <translation>Modifi&amp;er</translation>
    </message>
    <message>
        <source>Open the UV layout over the diffuse texture in the external image editor</source>
        <translation>Ouvrir le dépliage UV par-dessus la texture diffuse dans l’éditeur d’images externe</translation>
    </message>
    <message>
        <source>&amp;UV Layout</source>
        <translation>Dépliage &amp;UV</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>&amp;Luminosité</translation>
    </message>
    <message>
        <source>Brightness of the weight image, -100 to 100</source>
        <translation>Luminosité de l’image de poids, de -100 à 100</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>&amp;Contraste</translation>
    </message>
    <message>
        <source>Contrast of the weight image, -100 to 100</source>
        <translation>Contraste de l’image de poids, de -100 à 100</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Stop Picking</source>
        <translation>Arrêter le prélèvement</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialTable</name>
    <message>
        <source>Material Table</source>
        <translation>Tableau des matériaux</translation>
    </message>
    <message>
        <source>&amp;Materials that take part in the soft cloth:</source>
        <translation>&amp;Matériaux qui participent au tissu souple :</translation>
    </message>
    <message>
        <source>Ticked materials take part in the soft cloth</source>
        <translation>Les matériaux cochés participent au tissu souple</translation>
    </message>
    <message>
        <source>Materials of the object</source>
        <translation>Matériaux de l’objet</translation>
    </message>
    <message>
        <source>Apply the ticks to the materials</source>
        <translation>Appliquer les coches aux matériaux</translation>
    </message>
    <message>
        <source>C&amp;onfirm</source>
        <translation>&amp;Valider</translation>
    </message>
    <message>
        <source>Leave the materials as they are</source>
        <translation>Laisser les matériaux tels quels</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SoftClothPreset</name>
    <message>
        <source>Fold or unfold the presets</source>
        <translation>Plier ou déplier les préréglages</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the selected object on or off</source>
        <translation>Active ou désactive la physique de tissu souple de l’objet sélectionné</translation>
    </message>
    <message>
        <source>Activate Ph&amp;ysics</source>
        <translation>Activer la ph&amp;ysique</translation>
    </message>
    <message>
        <source>Turns the selected object into a rigid body</source>
        <translation>Transforme l’objet sélectionné en corps rigide</translation>
    </message>
    <message>
        <source>Rigid Body</source>
        <translation>Corps rigide</translation>
    </message>
    <message>
        <source>The selected object is soft cloth</source>
        <translation>L’objet sélectionné est un tissu souple</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>Tissu souple</translation>
    </message>
    <message>
        <source>The cloth falls as the scene&apos;s gravity pulls; otherwise it does not fall</source>
        <translation>Le tissu tombe selon la gravité de la scène ; sinon il ne tombe pas</translation>
    </message>
    <message>
        <source>Use &amp;World Gravity</source>
        <translation>&amp;Gravité du monde</translation>
    </message>
    <message>
        <source>Edits go to all materials of the object instead of the selected one only</source>
        <translation>Les modifications s’appliquent à tous les matériaux de l’objet et pas seulement à celui qui est choisi</translation>
    </message>
    <message>
        <source>Affect A&amp;ll Materials</source>
        <translation>Tous les matéria&amp;ux</translation>
    </message>
    <message>
        <source>A gray-scale image that says which parts follow the simulation: black stays, white moves</source>
        <translation>Une image en niveaux de gris qui dit quelles parties suivent la simulation : le noir reste, le blanc bouge</translation>
    </message>
    <message>
        <source>Weight &amp;Map</source>
        <translation>Carte de &amp;poids</translation>
    </message>
    <message>
        <source>Opens or closes the weight maps of the object&apos;s materials</source>
        <translation>Ouvre ou ferme les cartes de poids des matériaux de l’objet</translation>
    </message>
    <message>
        <source>Paint Weights…</source>
        <translation>Peindre les poids…</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>Tissu</translation>
    </message>
    <message>
        <source>Double-click a preset or press Return to apply its values to the selected material</source>
        <translation>Double-cliquez sur un préréglage ou appuyez sur Entrée pour appliquer ses valeurs au matériau choisi</translation>
    </message>
    <message>
        <source>Cloth presets</source>
        <translation>Préréglages de tissu</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Coton</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>Denim</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>Cuir</translation>
    </message>
    <message>
        <source>Silk</source>
        <translation>Soie</translation>
    </message>
    <message>
        <source>Rubber</source>
        <translation>Latex</translation>
    </message>
    <message>
        <source>Wool</source>
        <translation>Laine</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lin</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Velours</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>Cheveux</translation>
    </message>
    <message>
        <source>Hair presets</source>
        <translation>Préréglages de cheveux</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Courts</translation>
    </message>
    <message>
        <source>Bob</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Longs</translation>
    </message>
    <message>
        <source>Curly</source>
        <translation>Bouclés</translation>
    </message>
    <message>
        <source>Ponytail</source>
        <translation>Queue</translation>
    </message>
    <message>
        <source>Braid</source>
        <translation>Tresse</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Vent</translation>
    </message>
    <message>
        <source>Wind presets</source>
        <translation>Préréglages de vent</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Calme</translation>
    </message>
    <message>
        <source>Breeze</source>
        <translation>Brise</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>Tempête</translation>
    </message>
    <message>
        <source>Gusts</source>
        <translation>Rafales</translation>
    </message>
    <message>
        <source>Whirl</source>
        <translation>Tourbillon</translation>
    </message>
    <message>
        <source>Applies the values of a custom profile</source>
        <translation>Applique les valeurs d’un profil personnalisé</translation>
    </message>
    <message>
        <source>Load Profile…</source>
        <translation>Charger un profil…</translation>
    </message>
    <message>
        <source>Saves the values that the panel shows as a custom profile</source>
        <translation>Enregistre les valeurs que montre le panneau comme profil personnalisé</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>Enregistrer le profil…</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>Régulier</translation>
    </message>
</context>
<context>
    <name>SoftClothProperty</name>
    <message>
        <source>Fold or unfold the property settings</source>
        <translation>Plier ou déplier les propriétés</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms</source>
        <translation>Masse du tissu, en kilogrammes</translation>
    </message>
    <message>
        <source>M&amp;ass</source>
        <translation>Ma&amp;sse</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms. How hard it is to push the cloth around.</source>
        <translation>Masse du tissu, en kilogrammes. À quel point il est difficile de pousser le tissu.</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source> kg</source>
        <translation> kg</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz</source>
        <translation>Combien de fois par seconde le tissu est calculé, en hertz</translation>
    </message>
    <message>
        <source>Solver Fre&amp;quency</source>
        <translation>Fré&amp;quence du solveur</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz. More makes it steadier and stiffer, and costs simulation time.</source>
        <translation>Combien de fois par seconde le tissu est calculé, en hertz. Une valeur plus élevée le rend plus stable et plus raide, et coûte du temps de calcul.</translation>
    </message>
    <message>
        <source>Solver Frequency</source>
        <translation>Fréquence du solveur</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1</source>
        <translation>À quel point le tissu adhère à ce qu’il touche, de 0 à 1</translation>
    </message>
    <message>
        <source>F&amp;riction</source>
        <translation>Fri&amp;ction</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1. 0 slides freely, 1 hardly slides at all.</source>
        <translation>À quel point le tissu adhère à ce qu’il touche, de 0 à 1. À 0 il glisse librement, à 1 il ne glisse presque pas.</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Friction</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1</source>
        <translation>À quelle vitesse le mouvement du tissu s’éteint, de 0 à 1</translation>
    </message>
    <message>
        <source>&amp;Damping</source>
        <translation>Am&amp;ortissement</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1. 0 lets it swing on, 1 calms it at once.</source>
        <translation>À quelle vitesse le mouvement du tissu s’éteint, de 0 à 1. À 0 il continue d’osciller, à 1 il se calme aussitôt.</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>Amortissement</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1</source>
        <translation>À quel point l’air retient le tissu, de 0 à 1</translation>
    </message>
    <message>
        <source>Dra&amp;g</source>
        <translation>Traî&amp;née</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1. 0 cuts through the air, 1 is carried along with it.</source>
        <translation>À quel point l’air retient le tissu, de 0 à 1. À 0 il fend l’air, à 1 il est emporté avec lui.</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Traînée</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest</source>
        <translation>Jusqu’où le tissu peut s’éloigner de son attache, en multiple de sa longueur au repos</translation>
    </message>
    <message>
        <source>Tet&amp;her Limit</source>
        <translation>Limi&amp;te d’attache</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest. At 1 it never gets longer than it was modelled.</source>
        <translation>Jusqu’où le tissu peut s’éloigner de son attache, en multiple de sa longueur au repos. À 1 il n’est jamais plus long que modelé.</translation>
    </message>
    <message>
        <source>Tether Limit</source>
        <translation>Limite d’attache</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101</source>
        <translation>À quel point la limite d’attache est stricte, de 1 à 101</translation>
    </message>
    <message>
        <source>&amp;Tether Stiffness</source>
        <translation>Raideur de l’attac&amp;he</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101. 1 is the strictest, 101 lets the cloth pass the limit.</source>
        <translation>À quel point la limite d’attache est stricte, de 1 à 101. 1 est la plus stricte, 101 laisse le tissu dépasser la limite.</translation>
    </message>
    <message>
        <source>Tether Stiffness</source>
        <translation>Raideur de l’attache</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent</source>
        <translation>Combien de raideur à l’étirement est retirée, en pour cent</translation>
    </message>
    <message>
        <source>&amp;Stiffness</source>
        <translation>Raid&amp;eur</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent. At 0 % the cloth keeps its size, at 100 % it stretches freely; below 0 % it is stiffer still.</source>
        <translation>Combien de raideur à l’étirement est retirée, en pour cent. À 0 % le tissu garde sa taille, à 100 % il s’étire librement ; au-dessous de 0 % il est encore plus raide.</translation>
    </message>
    <message>
        <source>Stiffness</source>
        <translation>Raideur</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent</source>
        <translation>Combien de raideur à la flexion est retirée, en pour cent</translation>
    </message>
    <message>
        <source>&amp;Bending</source>
        <translation>Fle&amp;xion</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent. At 0 % the cloth hardly folds, at 100 % it folds freely; below 0 % it is stiffer still.</source>
        <translation>Combien de raideur à la flexion est retirée, en pour cent. À 0 % le tissu ne plie presque pas, à 100 % il plie librement ; au-dessous de 0 % il est encore plus raide.</translation>
    </message>
    <message>
        <source>Bending</source>
        <translation>Flexion</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths</source>
        <translation>Quelle part du mouvement de son objet parvient au tissu, en dixièmes</translation>
    </message>
    <message>
        <source>&amp;Inertia Scale</source>
        <translation>Échelle d’&amp;inertie</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths. At 0 nothing reaches it, at 10 all, at 20 twice as much; applies to straight movement, turning and centrifugal force alike.</source>
        <translation>Quelle part du mouvement de son objet parvient au tissu, en dixièmes. À 0 rien ne lui parvient, à 10 tout, à 20 deux fois plus ; vaut pour le mouvement droit, la rotation et la force centrifuge.</translation>
    </message>
    <message>
        <source>Inertia Scale</source>
        <translation>Échelle d’inertie</translation>
    </message>
</context>
<context>
    <name>SoftClothWindSetting</name>
    <message>
        <source>Fold or unfold the wind settings</source>
        <translation>Plier ou déplier les réglages du vent</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Vent</translation>
    </message>
    <message>
        <source>Steady push of the wind along each axis, in scene units per second squared</source>
        <translation>Poussée constante du vent selon chaque axe, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>External Acceleration</source>
        <translation>Accélération externe</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared</source>
        <translation>Poussée constante du vent selon X, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Poussée constante du vent selon X, en unités de la scène par seconde au carré. Un nombre négatif souffle dans l’autre sens.</translation>
    </message>
    <message>
        <source>External acceleration X</source>
        <translation>Accélération externe X</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared</source>
        <translation>Poussée constante du vent selon Y, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Poussée constante du vent selon Y, en unités de la scène par seconde au carré. Un nombre négatif souffle dans l’autre sens.</translation>
    </message>
    <message>
        <source>External acceleration Y</source>
        <translation>Accélération externe Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared</source>
        <translation>Poussée constante du vent selon Z, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Poussée constante du vent selon Z, en unités de la scène par seconde au carré. Un nombre négatif souffle dans l’autre sens.</translation>
    </message>
    <message>
        <source>External acceleration Z</source>
        <translation>Accélération externe Z</translation>
    </message>
    <message>
        <source>Largest random push of the wind along each axis, in scene units per second squared</source>
        <translation>Plus grande poussée aléatoire du vent selon chaque axe, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>Random Acceleration</source>
        <translation>Accélération aléatoire</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared</source>
        <translation>Plus grande poussée aléatoire du vent selon X, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Plus grande poussée aléatoire du vent selon X, en unités de la scène par seconde au carré. Elle va et vient à la fréquence du vent.</translation>
    </message>
    <message>
        <source>Random acceleration X</source>
        <translation>Accélération aléatoire X</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared</source>
        <translation>Plus grande poussée aléatoire du vent selon Y, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Plus grande poussée aléatoire du vent selon Y, en unités de la scène par seconde au carré. Elle va et vient à la fréquence du vent.</translation>
    </message>
    <message>
        <source>Random acceleration Y</source>
        <translation>Accélération aléatoire Y</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared</source>
        <translation>Plus grande poussée aléatoire du vent selon Z, en unités de la scène par seconde au carré</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Plus grande poussée aléatoire du vent selon Z, en unités de la scène par seconde au carré. Elle va et vient à la fréquence du vent.</translation>
    </message>
    <message>
        <source>Random acceleration Z</source>
        <translation>Accélération aléatoire Z</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz</source>
        <translation>À quel rythme la poussée aléatoire change, en hertz</translation>
    </message>
    <message>
        <source>Wind Freq&amp;uency</source>
        <translation>Fréquence du &amp;vent</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz. 0 keeps it as it is.</source>
        <translation>À quel rythme la poussée aléatoire change, en hertz. À 0 elle reste telle quelle.</translation>
    </message>
    <message>
        <source>Wind Frequency</source>
        <translation>Fréquence du vent</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles</source>
        <translation>De combien la poussée aléatoire varie : elle est multipliée par un nombre aléatoire entre les deux poignées</translation>
    </message>
    <message>
        <source>Rand&amp;om Factor</source>
        <translation>Facteur aléatoi&amp;re</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles. Drag a handle or use the arrow keys to move it; the handles keep their order.</source>
        <translation>De combien la poussée aléatoire varie : elle est multipliée par un nombre aléatoire entre les deux poignées</translation>
    </message>
    <message>
        <source>Random Factor</source>
        <translation>Facteur aléatoire</translation>
    </message>
    <message>
        <source>Smallest factor</source>
        <translation>Plus petit facteur</translation>
    </message>
    <message>
        <source>from 0</source>
        <translation>de 0</translation>
    </message>
    <message>
        <source>Largest factor</source>
        <translation>Plus grand facteur</translation>
    </message>
    <message>
        <source>to 10</source>
        <translation>à 10</translation>
    </message>
</context>
</TS>
