<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Host::CallJournal</name>
    <message>
        <source>Only the last calls are kept: the first %L1 since the journal was emptied are gone.</source>
        <translation>Seuls les derniers appels sont conservés : les %L1 premiers depuis la remise à zéro du journal ont disparu.</translation>
    </message>
</context>
<context>
    <name>Host::CallJournalModel</name>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appel</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
</context>
<context>
    <name>Host::Centre</name>
    <message>
        <source>The model is not shown, because there is no OpenGL 3.3 on this display.</source>
        <translation>Le modèle n’est pas affiché, car cet écran n’offre pas OpenGL 3.3.</translation>
    </message>
    <message>
        <source>The model is not shown, because this workbench was built without a view of it.</source>
        <translation>Le modèle n’est pas affiché, car ce programme a été construit sans vue du modèle.</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>Appels de l’hôte</translation>
    </message>
</context>
<context>
    <name>Host::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Delete Object</source>
        <translation>&amp;Supprimer l’objet</translation>
    </message>
    <message>
        <source>Image &amp;Editor…</source>
        <translation>Éditeur d’&amp;images…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Éditeur d’images</translation>
    </message>
    <message>
        <source>Program that opens weight images; empty for what the desktop opens them with:</source>
        <translation>Programme qui ouvre les images de poids ; vide pour celui avec lequel le bureau les ouvre :</translation>
    </message>
</context>
<context>
    <name>Host::HostApplication</name>
    <message>
        <source>Import %1</source>
        <translation>Importer %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Soft cloth on</source>
        <translation>Activer le tissu souple</translation>
    </message>
    <message>
        <source>Soft cloth off</source>
        <translation>Désactiver le tissu souple</translation>
    </message>
    <message>
        <source>Cancel soft cloth</source>
        <translation>Annuler le tissu souple</translation>
    </message>
    <message>
        <source>embedded weight image</source>
        <translation>image de poids incorporée</translation>
    </message>
    <message>
        <source>Load weight image %1</source>
        <translation>Charger l’image de poids %1</translation>
    </message>
    <message>
        <source>Delete weight image</source>
        <translation>Supprimer l’image de poids</translation>
    </message>
    <message>
        <source>Embed weight image</source>
        <translation>Incorporer l’image de poids</translation>
    </message>
    <message>
        <source>Adjust weight image</source>
        <translation>Ajuster l’image de poids</translation>
    </message>
    <message>
        <source>The edited weight image is black wherever the material has vertices; the former one is kept.</source>
        <translation>L’image de poids modifiée est noire partout où le matériau a des sommets ; la précédente est conservée.</translation>
    </message>
    <message>
        <source>Edit weight image</source>
        <translation>Modifier l’image de poids</translation>
    </message>
    <message>
        <source>The weight image could not be saved as &quot;%1&quot;: %2.</source>
        <translation>L’image de poids n’a pas pu être enregistrée sous « %1 » : %2.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>il n’y en a pas</translation>
    </message>
    <message>
        <source>the material is linked to this file, whose image would be adjusted again</source>
        <translation>le matériau est lié à ce fichier, dont l’image serait ajustée une seconde fois</translation>
    </message>
    <message>
        <source>images of this format cannot be written</source>
        <translation>les images de ce format ne peuvent pas être écrites</translation>
    </message>
    <message>
        <source>Convert to rigid body</source>
        <translation>Convertir en corps rigide</translation>
    </message>
    <message>
        <source>World gravity</source>
        <translation>Gravité du monde</translation>
    </message>
    <message>
        <source>Ignore materials</source>
        <translation>Ignorer des matériaux</translation>
    </message>
    <message>
        <source>Soft cloth property</source>
        <translation>Propriété du tissu souple</translation>
    </message>
    <message>
        <source>Soft cloth collision</source>
        <translation>Collision du tissu souple</translation>
    </message>
    <message>
        <source>Soft cloth wind</source>
        <translation>Vent du tissu souple</translation>
    </message>
    <message>
        <source>Add %1 to the soft cloth</source>
        <translation>Ajouter %1 au tissu souple</translation>
    </message>
    <message>
        <source>Take %1 out of the soft cloth</source>
        <translation>Retirer %1 du tissu souple</translation>
    </message>
    <message>
        <source>Load weight image</source>
        <translation>Charger une image de poids</translation>
    </message>
    <message>
        <source>Load soft cloth settings</source>
        <translation>Charger les réglages du tissu souple</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>embedded texture of %1</source>
        <translation>texture incorporée de %1</translation>
    </message>
    <message>
        <source>Make soft cloth</source>
        <translation>Créer un tissu souple</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>Supprimer %1 objets</translation>
    </message>
    <message>
        <source>The model &quot;%1&quot; is too large for this scene: %2.</source>
        <translation>Le modèle « %1 » est trop grand pour cette scène : %2.</translation>
    </message>
    <message>
        <source>The mesh &quot;%1&quot; has no texture coordinates, which would say where the image lies on it.</source>
        <translation>Le maillage « %1 » n’a pas de coordonnées de texture, qui diraient où l’image se place sur lui.</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp)</source>
        <translation>Images (*.png *.jpg *.jpeg *.bmp)</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</source>
        <translation>Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</translation>
    </message>
    <message>
        <source>Keep UV Layout</source>
        <translation>Conserver le dépliage UV</translation>
    </message>
</context>
<context>
    <name>Host::HostCallsView</name>
    <message>
        <source>Filter calls, for example SetSoftCloth</source>
        <translation>Filtrer les appels, par exemple SetSoftCloth</translation>
    </message>
    <message>
        <source>Shows only the calls that contain this text</source>
        <translation>Ne montre que les appels qui contiennent ce texte</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copies the whole journal as text</source>
        <translation>Copie tout le journal sous forme de texte</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Empties the journal</source>
        <translation>Vide le journal</translation>
    </message>
    <message>
        <source>Filter of the host calls</source>
        <translation>Filtre des appels de l’hôte</translation>
    </message>
    <message>
        <source>Host calls</source>
        <translation>Appels de l’hôte</translation>
    </message>
</context>
<context>
    <name>Host::HostControls</name>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Family A (0x7)</source>
        <translation>Famille A (0x7)</translation>
    </message>
    <message>
        <source>Family B (0x1800000)</source>
        <translation>Famille B (0x1800000)</translation>
    </message>
    <message>
        <source>Neither</source>
        <translation>Aucune des deux</translation>
    </message>
    <message>
        <source>The application that runs the plug-in. Another choice starts the plug-in again.</source>
        <translation>L’application dans laquelle tourne le plug-in. Un autre choix redémarre le plug-in.</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Physics engine of the scene. The panel is shown for engine 1 only.</source>
        <translation>Moteur physique de la scène. Le panneau n’est montré qu’avec le moteur 1.</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <source>Selected object</source>
        <translation>Objet sélectionné</translation>
    </message>
    <message>
        <source>Soft cloth physics</source>
        <translation>Physique du tissu souple</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the object, as the host&apos;s own menus would</source>
        <translation>Active ou désactive la physique de tissu souple de l’objet, comme le feraient les menus de l’hôte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Type code. Shown types: 1 to 6, 30 to 34, 38, 39, 51 to 53. Types 5 and 6 can be converted.</source>
        <translation>Code du type. Types montrés : 1 à 6, 30 à 34, 38, 39, 51 à 53. Les types 5 et 6 peuvent être convertis.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Kind code. Kind 14 has no choice of rigid body or soft cloth.</source>
        <translation>Code du genre. Le genre 14 n’a pas le choix entre corps rigide et tissu souple.</translation>
    </message>
    <message>
        <source>Convert state</source>
        <translation>Conversion</translation>
    </message>
    <message>
        <source>3 is at rest; another state of a type 5 or 6 object hides the panel in family A</source>
        <translation>3 est le repos ; un autre état d’un objet de type 5 ou 6 cache le panneau dans la famille A</translation>
    </message>
    <message>
        <source>Hides the panel for this object</source>
        <translation>Cache le panneau pour cet objet</translation>
    </message>
    <message>
        <source>Blocked in family A</source>
        <translation>Bloqué dans la famille A</translation>
    </message>
    <message>
        <source>Blocked in family B</source>
        <translation>Bloqué dans la famille B</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modes</translation>
    </message>
    <message>
        <source>None (0)</source>
        <translation>Aucun (0)</translation>
    </message>
    <message>
        <source>Weight map (25)</source>
        <translation>Carte de poids (25)</translation>
    </message>
    <message>
        <source>Another (7)</source>
        <translation>Un autre (7)</translation>
    </message>
    <message>
        <source>Dialog mode</source>
        <translation>Mode dialogue</translation>
    </message>
    <message>
        <source>Material (7)</source>
        <translation>Matériau (7)</translation>
    </message>
    <message>
        <source>Another (3)</source>
        <translation>Un autre (3)</translation>
    </message>
    <message>
        <source>Pick mode</source>
        <translation>Mode prélèvement</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Events by hand</source>
        <translation>Événements à la main</translation>
    </message>
    <message>
        <source>Topology (0x2)</source>
        <translation>Topologie (0x2)</translation>
    </message>
    <message>
        <source>Replaced (0x4)</source>
        <translation>Remplacé (0x4)</translation>
    </message>
    <message>
        <source>Material list (0x8)</source>
        <translation>Liste des matériaux (0x8)</translation>
    </message>
    <message>
        <source>Removed (0x40)</source>
        <translation>Retiré (0x40)</translation>
    </message>
    <message>
        <source>Material names (0x100)</source>
        <translation>Noms des matériaux (0x100)</translation>
    </message>
    <message>
        <source>Sends that the data of the selected objects have changed</source>
        <translation>Signale que les données des objets sélectionnés ont changé</translation>
    </message>
    <message>
        <source>Data changed</source>
        <translation>Données changées</translation>
    </message>
    <message>
        <source>Sends this event to the plug-in</source>
        <translation>Envoie cet événement au plug-in</translation>
    </message>
    <message>
        <source>Hierarchy changed</source>
        <translation>Hiérarchie changée</translation>
    </message>
    <message>
        <source>Undo or redo done</source>
        <translation>Annulation ou rétablissement</translation>
    </message>
    <message>
        <source>About to convert</source>
        <translation>Avant la conversion</translation>
    </message>
    <message>
        <source>Several materials detected</source>
        <translation>Plusieurs matériaux détectés</translation>
    </message>
    <message>
        <source>Edited image saved</source>
        <translation>Image modifiée enregistrée</translation>
    </message>
    <message>
        <source>Failing calls</source>
        <translation>Appels en échec</translation>
    </message>
    <message>
        <source>GetSoftClothCollision</source>
        <translation>GetSoftClothCollision</translation>
    </message>
    <message>
        <source>Host operation that is to fail, as the Host Calls view names it</source>
        <translation>Opération de l’hôte qui doit échouer, comme la nomme la vue des appels</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Status that the failing call answers</source>
        <translation>Statut que renvoie l’appel en échec</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Let it fail</source>
        <translation>Faire échouer</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>Tout réparer</translation>
    </message>
</context>
<context>
    <name>Host::ImageEditor</name>
    <message>
        <source>there is no folder for temporary files</source>
        <translation>il n’y a pas de dossier pour les fichiers temporaires</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; for the image editor could not be written: %2.</source>
        <translation>Le fichier « %1 » pour l’éditeur d’images n’a pas pu être écrit : %2.</translation>
    </message>
</context>
<context>
    <name>Host::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Langue du &amp;système</translation>
    </message>
</context>
<context>
    <name>Host::Legend</name>
    <message>
        <source>Held (black)</source>
        <translation>Tenu (noir)</translation>
    </message>
    <message>
        <source>Free (white)</source>
        <translation>Libre (blanc)</translation>
    </message>
    <message>
        <source>No weight image</source>
        <translation>Pas d’image de poids</translation>
    </message>
    <message>
        <source>Legend of the weights</source>
        <translation>Légende des poids</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>Host Controls</source>
        <translation>Commandes de l’hôte</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>The page of the host&apos;s panels that the plug-in asked for last</source>
        <translation>La page des panneaux de l’hôte que le plug-in a demandée en dernier</translation>
    </message>
    <message>
        <source>Panel page %1, place %2, option %3</source>
        <translation>Page %1, place %2, option %3</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
</context>
<context>
    <name>Host::MovingVertices</name>
    <message>
        <source>How many vertices of the chosen material the weight image lets move. More than %L1 are slow to simulate.</source>
        <translation>Nombre de sommets du matériau choisi que l’image de poids laisse bouger. Au-delà de %L1, la simulation est lente.</translation>
    </message>
    <message>
        <source>%1: %L2 of %L3 vertices move</source>
        <translation>%1 : %L2 sommets sur %L3 bougent</translation>
    </message>
</context>
<context>
    <name>Host::PanelActions</name>
    <message>
        <source>&amp;Weight Map Dialog</source>
        <translation>&amp;Dialogue de carte de poids</translation>
    </message>
    <message>
        <source>Opens or closes the dialog that chooses the material and its weight image</source>
        <translation>Ouvre ou ferme le dialogue qui choisit le matériau et son image de poids</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>Tissu souple</translation>
    </message>
</context>
<context>
    <name>Host::PickGuide</name>
    <message>
        <source>Click a material to pick it; Escape ends picking.</source>
        <translation>Cliquez un matériau pour le choisir ; Échap termine le choix.</translation>
    </message>
</context>
<context>
    <name>Host::RecentFiles</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Effacer la liste</translation>
    </message>
</context>
<context>
    <name>Host::SceneFiles</name>
    <message>
        <source>Soft cloth scenes (*.clothscene)</source>
        <translation>Scènes de tissu souple (*.clothscene)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>&amp;Nouvelle scène</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>&amp;Ouvrir une scène…</translation>
    </message>
    <message>
        <source>&amp;Import Model…</source>
        <translation>&amp;Importer un modèle…</translation>
    </message>
    <message>
        <source>&amp;Recent Files</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Save Scene</source>
        <translation>&amp;Enregistrer la scène</translation>
    </message>
    <message>
        <source>Save Scene &amp;As…</source>
        <translation>Enregistrer la scène &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import cancelled</source>
        <translation>Importation annulée</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Import Model</source>
        <translation>Importer un modèle</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>Modèles (*.%1)</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>Ouvrir une scène</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Enregistrer la scène</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The scene has changes that are not saved.</source>
        <translation>La scène a des modifications qui ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>Host::SceneTree</name>
    <message>
        <source>Objects of the scene</source>
        <translation>Objets de la scène</translation>
    </message>
</context>
<context>
    <name>Host::UnitDialog</name>
    <message>
        <source>Import Model</source>
        <translation>Importer un modèle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say in which unit it was made.</source>
        <translation>« %1 » n’indique pas son unité de longueur.</translation>
    </message>
    <message>
        <source>&amp;Unit of the file</source>
        <translation>&amp;Unité du fichier</translation>
    </message>
    <message>
        <source>Largest side</source>
        <translation>Plus grand côté</translation>
    </message>
    <message>
        <source>%1 cm in the scene</source>
        <translation>%1 cm dans la scène</translation>
    </message>
</context>
<context>
    <name>Host::ViewActions</name>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>Cadrer la &amp;sélection</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>Cadrer &amp;tout</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>&amp;Face</translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation>&amp;Côté</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Dessus</translation>
    </message>
    <message>
        <source>Shows the weight images on the model: what is held and what moves freely</source>
        <translation>Affiche les images de poids sur le modèle : ce qui est tenu et ce qui bouge librement</translation>
    </message>
    <message>
        <source>Show Wei&amp;ghts</source>
        <translation>Afficher les &amp;poids</translation>
    </message>
</context>
<context>
    <name>Host::ViewTexts</name>
    <message>
        <source>Grid: %1 cm</source>
        <translation>Grille : %1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewedScene</name>
    <message>
        <source>Triangles that cannot be shown, because a corner is nowhere: %L1</source>
        <translation>Triangles qui ne peuvent pas être affichés, car un sommet n’est nulle part : %L1</translation>
    </message>
    <message>
        <source>Textures that cannot be read: %1</source>
        <translation>Textures illisibles : %1</translation>
    </message>
</context>
<context>
    <name>Host::ViewportWidget</name>
    <message>
        <source>View of the model</source>
        <translation>Vue du modèle</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>ImageText</name>
    <message>
        <source>it is no JPEG, BMP, GIF, PNG or TGA image</source>
        <translation>ce n’est pas une image JPEG, BMP, GIF, PNG ou TGA</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 on a side are too many</source>
        <translation>elle a %1 x %2 pixels, et plus de %3 par côté, c’est trop</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 in all are too many</source>
        <translation>elle a %1 x %2 pixels, et plus de %3 en tout, c’est trop</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>elle est tronquée</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>elle est endommagée</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>elle est vide</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop volumineux</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2.</source>
        <translation>L’image « %1 » n’a pas pu être lue : %2.</translation>
    </message>
</context>
<context>
    <name>ModelText</name>
    <message>
        <source>The model file &quot;%1&quot; could not be read: %2</source>
        <translation>Le fichier de modèle « %1 » n’a pas pu être lu : %2</translation>
    </message>
    <message>
        <source>The model in &quot;%1&quot; is too large: %2.</source>
        <translation>Le modèle dans « %1 » est trop grand : %2.</translation>
    </message>
    <message>
        <source>There is no model file &quot;%1&quot;.</source>
        <translation>Il n’y a pas de fichier de modèle « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>« %1 » n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is empty.</source>
        <translation>Le fichier de modèle « %1 » est vide.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is too large.</source>
        <translation>Le fichier de modèle « %1 » est trop volumineux.</translation>
    </message>
    <message>
        <source>it is damaged.</source>
        <translation>il est endommagé.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; holds no surfaces.</source>
        <translation>Le fichier de modèle « %1 » ne contient aucune surface.</translation>
    </message>
</context>
<context>
    <name>PanelHint</name>
    <message>
        <source>The scene is empty. Import a model with File &gt; Import Model, or drop its file on this window.</source>
        <translation>La scène est vide. Importez un modèle avec Fichier &gt; Importer un modèle, ou déposez son fichier sur cette fenêtre.</translation>
    </message>
    <message>
        <source>Click an object in the scene to edit its soft cloth.</source>
        <translation>Cliquez un objet de la scène pour modifier son tissu souple.</translation>
    </message>
    <message>
        <source>Several objects are selected. Select one alone to edit its soft cloth.</source>
        <translation>Plusieurs objets sont sélectionnés. N’en sélectionnez qu’un pour modifier son tissu souple.</translation>
    </message>
    <message>
        <source>Soft cloth needs physics engine 1: see Host Controls.</source>
        <translation>Le tissu souple demande le moteur physique 1 : voir Commandes de l’hôte.</translation>
    </message>
    <message>
        <source>There is no soft cloth for this object. Its type, its kind or a block may keep it out: see Host Controls.</source>
        <translation>Il n’y a pas de tissu souple pour cet objet. Son type, son genre ou un blocage peut l’exclure : voir Commandes de l’hôte.</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>%1 is not a plug-in for this host.</source>
        <translation>%1 n’est pas un plug-in pour cet hôte.</translation>
    </message>
    <message>
        <source>%1 does not work in this host.</source>
        <translation>%1 ne fonctionne pas dans cet hôte.</translation>
    </message>
    <message>
        <source>%1 did not start (0x%2).</source>
        <translation>%1 n’a pas démarré (0x%2).</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for this host: %2</source>
        <translation>%1 n’est pas un plug-in pour cet hôte : %2</translation>
    </message>
    <message>
        <source>There is no resource file &quot;%1&quot;.</source>
        <translation>Il n’y a pas de fichier de ressources « %1 ».</translation>
    </message>
</context>
<context>
    <name>PreviewText</name>
    <message>
        <source>The preview stopped because the cloth got out of control. Reset starts it again.</source>
        <translation>L’aperçu s’est arrêté parce que le tissu est devenu incontrôlable. Réinitialiser le relance.</translation>
    </message>
</context>
<context>
    <name>Scene</name>
    <message>
        <source>Several values</source>
        <translation>Plusieurs valeurs</translation>
    </message>
</context>
<context>
    <name>SceneText</name>
    <message>
        <source>is named a second time</source>
        <translation>est nommé une seconde fois</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is both linked and embedded</source>
        <translation>est à la fois lié et incorporé</translation>
    </message>
    <message>
        <source>is damaged: its check sum does not fit</source>
        <translation>est endommagé : la somme de contrôle ne correspond pas</translation>
    </message>
    <message>
        <source>does not hold as many items as it says</source>
        <translation>ne contient pas autant d’éléments qu’indiqué</translation>
    </message>
    <message>
        <source>cannot be unpacked</source>
        <translation>ne peut pas être décompressé</translation>
    </message>
    <message>
        <source>its values are nested more than %1 levels deep</source>
        <translation>ses valeurs sont imbriquées sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>it has more than %1 values</source>
        <translation>il y a plus de %1 valeurs</translation>
    </message>
    <message>
        <source>must be a group of values</source>
        <translation>doit être un groupe de valeurs</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>est absent</translation>
    </message>
    <message>
        <source>must be a list</source>
        <translation>doit être une liste</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>doit être vrai (true) ou faux (false)</translation>
    </message>
    <message>
        <source>must be text</source>
        <translation>doit être un texte</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>doit être un nombre</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>doit être un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>is not valid base64</source>
        <translation>n’est pas du base64 valide</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>le document</translation>
    </message>
    <message>
        <source>The scene could not be saved as &quot;%1&quot;: %2.</source>
        <translation>La scène n’a pas pu être enregistrée sous « %1 » : %2.</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; could not be loaded: %2.</source>
        <translation>Le fichier de scène « %1 » n’a pas pu être chargé : %2.</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>le nom manque</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>la scène est trop volumineuse</translation>
    </message>
    <message>
        <source>There is no scene file &quot;%1&quot;.</source>
        <translation>Il n’y a pas de fichier de scène « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>« %1 » n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; is empty.</source>
        <translation>Le fichier de scène « %1 » est vide.</translation>
    </message>
    <message>
        <source>it is damaged or no scene file at all (%1 at byte %2)</source>
        <translation>il est endommagé ou n’est pas un fichier de scène (%1 à l’octet %2)</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>must be a list of 4 numbers</source>
        <translation>doit être une liste de 4 nombres</translation>
    </message>
    <message>
        <source>is %1, which is in use already</source>
        <translation>est %1, qui est déjà utilisé</translation>
    </message>
    <message>
        <source>has a texture already</source>
        <translation>a déjà une texture</translation>
    </message>
    <message>
        <source>must hold three indices per triangle</source>
        <translation>doit contenir trois indices par triangle</translation>
    </message>
    <message>
        <source>names a vertex that the mesh does not have</source>
        <translation>nomme un sommet que le maillage n’a pas</translation>
    </message>
    <message>
        <source>names a material that the object does not have</source>
        <translation>nomme un matériau que l’objet n’a pas</translation>
    </message>
    <message>
        <source>must hold one item per vertex or none</source>
        <translation>doit contenir un élément par sommet ou aucun</translation>
    </message>
    <message>
        <source>has a slot on this mesh already</source>
        <translation>a déjà un emplacement sur ce maillage</translation>
    </message>
    <message>
        <source>is no object of the scene</source>
        <translation>n’est pas un objet de la scène</translation>
    </message>
    <message>
        <source>changes something that the scene does not have</source>
        <translation>modifie quelque chose que la scène n’a pas</translation>
    </message>
    <message>
        <source>it is no scene of this application</source>
        <translation>ce n’est pas une scène de cette application</translation>
    </message>
    <message>
        <source>it was written by a newer version of this application</source>
        <translation>il a été écrit par une version plus récente de cette application</translation>
    </message>
    <message>
        <source>it has %1 meshes, and more than %2 are too many</source>
        <translation>il y a %1 maillages, et plus de %2, c’est trop</translation>
    </message>
    <message>
        <source>it has %1 materials, and more than %2 are too many</source>
        <translation>il y a %1 matériaux, et plus de %2, c’est trop</translation>
    </message>
    <message>
        <source>it has %1 vertices, and more than %2 are too many</source>
        <translation>il y a %1 sommets, et plus de %2, c’est trop</translation>
    </message>
    <message>
        <source>it has %1 triangles, and more than %2 are too many</source>
        <translation>il y a %1 triangles, et plus de %2, c’est trop</translation>
    </message>
    <message>
        <source>must be a whole number in quotation marks</source>
        <translation>doit être un nombre entier entre guillemets</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>est hors limites</translation>
    </message>
    <message>
        <source>must be a list of %1 numbers</source>
        <translation>doit être une liste de %1 nombres</translation>
    </message>
    <message>
        <source>must be %1 bytes</source>
        <translation>doit faire %1 octets</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>Millimetre</source>
        <translation>Millimètre</translation>
    </message>
    <message>
        <source>Centimetre</source>
        <translation>Centimètre</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Pouce</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pied</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>Mètre</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A stand-in host for the soft cloth physics panel.</source>
        <translation>Un hôte de remplacement pour le panneau de physique du tissu souple.</translation>
    </message>
    <message>
        <source>Model or scene file; the demo character without.</source>
        <translation>Fichier de modèle ou de scène ; sans lui, le personnage de démonstration.</translation>
    </message>
    <message>
        <source>Application family: a, b or none.</source>
        <translation>Famille d’application : a, b ou none.</translation>
    </message>
    <message>
        <source>The plug-in library to load.</source>
        <translation>La bibliothèque du plug-in à charger.</translation>
    </message>
    <message>
        <source>Run the main job unattended and write pictures into this folder.</source>
        <translation>Exécuter la tâche principale sans intervention et écrire des images dans ce dossier.</translation>
    </message>
    <message>
        <source>Program, with its options, that opens images in place of the one chosen.</source>
        <translation>Programme, avec ses options, qui ouvre les images à la place de celui qui est choisi.</translation>
    </message>
    <message>
        <source>Language in place of the one chosen, for example de or zh_TW.</source>
        <translation>Langue à la place de celle qui est choisie, par exemple de ou zh_TW.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;, but these: %2.</source>
        <translation>Il n’y a pas de langue « %1 », mais celles-ci : %2.</translation>
    </message>
    <message>
        <source>There is no application family &quot;%1&quot;, but these: a, b, none.</source>
        <translation>Il n’y a pas de famille d’applications « %1 », mais celles-ci : a, b, none.</translation>
    </message>
    <message>
        <source>Only one model can be opened; &quot;%1&quot; is one too many.</source>
        <translation>Un seul modèle peut être ouvert ; « %1 » est de trop.</translation>
    </message>
    <message>
        <source>Unit of a model whose file does not name one, in place of asking: %1.</source>
        <translation>Unité d’un modèle dont le fichier n’en indique aucune, au lieu de la demander : %1.</translation>
    </message>
    <message>
        <source>There is no unit &quot;%1&quot;, but these: %2.</source>
        <translation>L’unité « %1 » n’existe pas ; il y a : %2.</translation>
    </message>
</context>
</TS>
