<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>LensFlare section hot key</name>
    <message>
        <source>[Hot Key] Physics</source>
        <translation>[Tastenkürzel] Physik</translation>
    </message>
</context>
<context>
    <name>MV::CEditedMaterial</name>
    <message>
        <source>There is no material to edit</source>
        <translation>Es gibt kein Material zum Bearbeiten</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothMaterialDlg</name>
    <message>
        <source>InValid File Path.</source>
        <translation>Der Dateipfad ist ungültig.</translation>
    </message>
    <message>
        <source>File is Unreadable.</source>
        <translation>Die Datei ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. </source>
        <translation>Das erzeugte Stoffmesh überschreitet die Höchstzahl von 20.000 Punkten. Bitte versuchen Sie es mit einem anderen gültigen Bild. </translation>
    </message>
    <message>
        <source>This image would create a soft cloth without any physics effect,
 because all the vertices of cloth mesh were set as zero weighting
( black color ). Please modify the gray map or load other valid images.</source>
        <translation>Dieses Bild ergäbe einen weichen Stoff ohne jede physikalische Wirkung,
 weil alle Punkte des Stoffmeshs die Gewichtung null hätten
(schwarz). Bitte ändern Sie das Graustufenbild oder laden Sie andere gültige Bilder.</translation>
    </message>
    <message>
        <source>Failed to save weight image.</source>
        <translation>Das Gewichtsbild konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Failed to launch image editor.</source>
        <translation>Der Bildeditor konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Diffuse Uv Texture does not exist.</source>
        <translation>Es gibt keine UV-Textur zur diffusen Textur.</translation>
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
        <translation>Mesh</translation>
    </message>
    <message>
        <source>Material Name</source>
        <comment>MVPhysicsSoftClothSection Material Table �ĤT���W��</comment>
        <translation>Materialname</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothPresetSection</name>
    <message>
        <source>File is Unreadable.</source>
        <translation>Die Datei ist nicht lesbar.</translation>
    </message>
    <message>
        <source>InValid File Path.</source>
        <translation>Der Dateipfad ist ungültig.</translation>
    </message>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>Eigenes Stoffprofil laden</translation>
    </message>
    <message>
        <source>INI Files (*.ini)</source>
        <translation>INI-Dateien (*.ini)</translation>
    </message>
    <message>
        <source>Save Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>Eigenes Stoffprofil speichern</translation>
    </message>
    <message>
        <source>File is Unwritable.</source>
        <translation>Die Datei ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Load Soft Ini Profile</source>
        <comment>Open File title</comment>
        <translation>Soft-INI-Profil laden</translation>
    </message>
    <message>
        <source>[Hot Key] Modify</source>
        <comment>Modify Panel hot key</comment>
        <translation>[Tastenkürzel] Ändern</translation>
    </message>
    <message>
        <source>[Hot Key] Physics</source>
        <comment>LensFlare section hot key</comment>
        <translation>[Tastenkürzel] Physik</translation>
    </message>
    <message>
        <source>This object does not have any valid material enabling to create soft cloth.</source>
        <translation>Dieses Objekt hat kein gültiges Material, aus dem weicher Stoff werden kann.</translation>
    </message>
    <message>
        <source>This object has multiple materials.
 Please select a material and load a gray map image.</source>
        <translation>Dieses Objekt hat mehrere Materialien.
 Bitte wählen Sie ein Material und laden Sie ein Graustufenbild.</translation>
    </message>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <comment>Message Title</comment>
        <translation>[Physik: weicher Stoff] Movira 6</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothWindSection</name>
    <message>
        <source>from %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>bis %1</translation>
    </message>
</context>
<context>
    <name>Message Title</name>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <translation>[Physik: weicher Stoff] Movira 6</translation>
    </message>
</context>
<context>
    <name>Modify Panel hot key</name>
    <message>
        <source>[Hot Key] Modify</source>
        <translation>[Tastenkürzel] Ändern</translation>
    </message>
</context>
<context>
    <name>Open File title</name>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <translation>Eigenes Stoffprofil laden</translation>
    </message>
</context>
<context>
    <name>SoftClothCollision</name>
    <message>
        <source>Fold or unfold the collision settings</source>
        <translation>Kollisionseinstellungen auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>Kollision</translation>
    </message>
    <message>
        <source>The cloth is stopped by rigid bodies instead of passing through them</source>
        <translation>Starre Körper halten den Stoff auf, statt dass er durch sie hindurchgeht</translation>
    </message>
    <message>
        <source>Soft vs. Rigid Collision</source>
        <translation>Kollision weich gegen starr</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units</source>
        <translation>Abstand des Stoffs von starren Körpern, in Szeneneinheiten</translation>
    </message>
    <message>
        <source>&amp;Collision Margin</source>
        <translation>&amp;Kollisionsabstand</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units. A larger margin keeps fast cloth from slipping through.</source>
        <translation>Abstand des Stoffs von starren Körpern, in Szeneneinheiten. Ein größerer Abstand verhindert, dass schneller Stoff hindurchrutscht.</translation>
    </message>
    <message>
        <source>Rigid collision margin</source>
        <translation>Abstand bei Kollision mit starren Körpern</translation>
    </message>
    <message>
        <source>Folds of the cloth push each other apart instead of passing through; costs simulation time</source>
        <translation>Falten des Stoffs drücken einander weg, statt sich zu durchdringen; kostet Rechenzeit</translation>
    </message>
    <message>
        <source>Self Collision</source>
        <translation>Selbstkollision</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units</source>
        <translation>Abstand der Stofffalten voneinander, in Szeneneinheiten</translation>
    </message>
    <message>
        <source>Self Collisio&amp;n Margin</source>
        <translation>Abs&amp;tand bei Selbstkollision</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units. Too large a margin makes the cloth look thick.</source>
        <translation>Abstand der Stofffalten voneinander, in Szeneneinheiten. Bei zu großem Abstand wirkt der Stoff dick.</translation>
    </message>
    <message>
        <source>Self collision margin</source>
        <translation>Abstand bei Selbstkollision</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialDlg</name>
    <message>
        <source>Soft Cloth Weight Map</source>
        <translation>Gewichtskarte des weichen Stoffs</translation>
    </message>
    <message>
        <source>&amp;Materials</source>
        <translation>&amp;Materialien</translation>
    </message>
    <message>
        <source>Materials of the object that take part in the soft cloth. The chosen one is edited here and in the panel.</source>
        <translation>Materialien des Objekts, die am weichen Stoff teilnehmen. Das ausgewählte wird hier und im Bedienfeld bearbeitet.</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>Choose a material by clicking it in the viewport; Escape ends picking</source>
        <translation>Ein Material durch Anklicken in der Ansicht wählen; Escape beendet das Aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Pick Material</source>
        <translation>Material &amp;aufnehmen</translation>
    </message>
    <message>
        <source>Decide in a table which materials take part in the soft cloth</source>
        <translation>In einer Tabelle festlegen, welche Materialien am weichen Stoff teilnehmen</translation>
    </message>
    <message>
        <source>Material &amp;Table...</source>
        <translation>Material&amp;tabelle...</translation>
    </message>
    <message>
        <source>Weight Image</source>
        <translation>Gewichtsbild</translation>
    </message>
    <message>
        <source>Diffuse texture of the material</source>
        <translation>Diffuse Textur des Materials</translation>
    </message>
    <message>
        <source>Diffuse texture</source>
        <translation>Diffuse Textur</translation>
    </message>
    <message>
        <source>&amp;Diffuse</source>
        <translation>&amp;Diffus</translation>
    </message>
    <message>
        <source>Opacity texture of the material</source>
        <translation>Deckkrafttextur des Materials</translation>
    </message>
    <message>
        <source>Opacity texture</source>
        <translation>Deckkrafttextur</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>Deckkra&amp;ft</translation>
    </message>
    <message>
        <source>Weight image of the material: black holds the vertices, lighter grays let them move. Drop an image file here, or double-click to choose one.</source>
        <translation>Gewichtsbild des Materials: Schwarz hält die Punkte fest, hellere Grautöne geben sie frei. Ziehen Sie eine Bilddatei hierher oder doppelklicken Sie, um eine zu wählen.</translation>
    </message>
    <message>
        <source>Weight image</source>
        <translation>Gewichtsbild</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>&amp;Gewichtung</translation>
    </message>
    <message>
        <source>The chosen texture, enlarged</source>
        <translation>Die ausgewählte Textur, vergrößert</translation>
    </message>
    <message>
        <source>Preview of the chosen texture</source>
        <translation>Vorschau der ausgewählten Textur</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Date&amp;i</translation>
    </message>
    <message>
        <source>File that the weight image is linked to</source>
        <translation>Datei, mit der das Gewichtsbild verknüpft ist</translation>
    </message>
    <message>
        <source>File of the weight image</source>
        <translation>Datei des Gewichtsbilds</translation>
    </message>
    <message>
        <source>No linked file</source>
        <translation>Keine verknüpfte Datei</translation>
    </message>
    <message>
        <source>Show the folder of the weight image&apos;s file</source>
        <translation>Den Ordner der Gewichtsbilddatei zeigen</translation>
    </message>
    <message>
        <source>Open Folde&amp;r</source>
        <translation>O&amp;rdner öffnen</translation>
    </message>
    <message>
        <source>Load an image file as the weight image</source>
        <translation>Eine Bilddatei als Gewichtsbild laden</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden...</translation>
    </message>
    <message>
        <source>Save the weight image to a file</source>
        <translation>Das Gewichtsbild in einer Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>Take the weight image away from the material</source>
        <translation>Das Gewichtsbild vom Material entfernen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep the weight image inside the material instead of linking its file</source>
        <translation>Das Gewichtsbild im Material behalten, statt seine Datei zu verknüpfen</translation>
    </message>
    <message>
        <source>&amp;Embed</source>
        <translation>&amp;Einbetten</translation>
    </message>
    <message>
        <source>Edit the chosen texture in the external image editor</source>
        <translation>Die ausgewählte Textur im externen Bildeditor bearbeiten</translation>
    </message>
    <message>
        <source>Ed&amp;it</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Open the UV layout over the diffuse texture in the external image editor</source>
        <translation>Das UV-Layout über der diffusen Textur im externen Bildeditor öffnen</translation>
    </message>
    <message>
        <source>&amp;UV Layout</source>
        <translation>&amp;UV-Layout</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>&amp;Helligkeit</translation>
    </message>
    <message>
        <source>Brightness of the weight image, -100 to 100</source>
        <translation>Helligkeit des Gewichtsbilds, -100 bis 100</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>&amp;Kontrast</translation>
    </message>
    <message>
        <source>Contrast of the weight image, -100 to 100</source>
        <translation>Kontrast des Gewichtsbilds, -100 bis 100</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Stop Picking</source>
        <translation>Aufnehmen beenden</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialTable</name>
    <message>
        <source>Material Table</source>
        <translation>Materialtabelle</translation>
    </message>
    <message>
        <source>&amp;Materials that take part in the soft cloth:</source>
        <translation>&amp;Materialien, die am weichen Stoff teilnehmen:</translation>
    </message>
    <message>
        <source>Ticked materials take part in the soft cloth</source>
        <translation>Angekreuzte Materialien nehmen am weichen Stoff teil</translation>
    </message>
    <message>
        <source>Materials of the object</source>
        <translation>Materialien des Objekts</translation>
    </message>
    <message>
        <source>Apply the ticks to the materials</source>
        <translation>Die Häkchen auf die Materialien anwenden</translation>
    </message>
    <message>
        <source>C&amp;onfirm</source>
        <translation>&amp;Bestätigen</translation>
    </message>
    <message>
        <source>Leave the materials as they are</source>
        <translation>Die Materialien lassen, wie sie sind</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>SoftClothPreset</name>
    <message>
        <source>Fold or unfold the presets</source>
        <translation>Voreinstellungen auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the selected object on or off</source>
        <translation>Schaltet die Physik des weichen Stoffs für das ausgewählte Objekt ein oder aus</translation>
    </message>
    <message>
        <source>Activate Ph&amp;ysics</source>
        <translation>Ph&amp;ysik aktivieren</translation>
    </message>
    <message>
        <source>Turns the selected object into a rigid body</source>
        <translation>Macht aus dem ausgewählten Objekt einen starren Körper</translation>
    </message>
    <message>
        <source>Rigid Body</source>
        <translation>Starrer Körper</translation>
    </message>
    <message>
        <source>The selected object is soft cloth</source>
        <translation>Das ausgewählte Objekt ist weicher Stoff</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>Weicher Stoff</translation>
    </message>
    <message>
        <source>The cloth falls as the scene&apos;s gravity pulls; otherwise it does not fall</source>
        <translation>Der Stoff fällt, wie die Schwerkraft der Szene zieht; sonst fällt er nicht</translation>
    </message>
    <message>
        <source>Use &amp;World Gravity</source>
        <translation>&amp;Weltschwerkraft nutzen</translation>
    </message>
    <message>
        <source>Edits go to all materials of the object instead of the selected one only</source>
        <translation>Änderungen gelten für alle Materialien des Objekts statt nur für das ausgewählte</translation>
    </message>
    <message>
        <source>Affect A&amp;ll Materials</source>
        <translation>A&amp;lle Materialien ändern</translation>
    </message>
    <message>
        <source>A gray-scale image that says which parts follow the simulation: black stays, white moves</source>
        <translation>Ein Graustufenbild, das sagt, welche Teile der Simulation folgen: Schwarz bleibt stehen, Weiß bewegt sich</translation>
    </message>
    <message>
        <source>Weight &amp;Map</source>
        <translation>&amp;Gewichtskarte</translation>
    </message>
    <message>
        <source>Opens or closes the weight maps of the object&apos;s materials</source>
        <translation>Öffnet oder schließt die Gewichtskarten der Materialien des Objekts</translation>
    </message>
    <message>
        <source>Paint Weights…</source>
        <translation>Gewichte malen…</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>Stoff</translation>
    </message>
    <message>
        <source>Double-click a preset or press Return to apply its values to the selected material</source>
        <translation>Doppelklicken Sie auf eine Voreinstellung oder drücken Sie die Eingabetaste, um ihre Werte auf das ausgewählte Material anzuwenden</translation>
    </message>
    <message>
        <source>Cloth presets</source>
        <translation>Voreinstellungen für Stoff</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Baumwolle</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>Denim</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>Leder</translation>
    </message>
    <message>
        <source>Silk</source>
        <translation>Seide</translation>
    </message>
    <message>
        <source>Rubber</source>
        <translation>Gummi</translation>
    </message>
    <message>
        <source>Wool</source>
        <translation>Wolle</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Samt</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>Haar</translation>
    </message>
    <message>
        <source>Hair presets</source>
        <translation>Voreinstellungen für Haar</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
    </message>
    <message>
        <source>Bob</source>
        <translation>Bob</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Lang</translation>
    </message>
    <message>
        <source>Curly</source>
        <translation>Lockig</translation>
    </message>
    <message>
        <source>Ponytail</source>
        <translation>Pferdeschwanz</translation>
    </message>
    <message>
        <source>Braid</source>
        <translation>Zopf</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Wind presets</source>
        <translation>Voreinstellungen für Wind</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Windstille</translation>
    </message>
    <message>
        <source>Breeze</source>
        <translation>Brise</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>Sturm</translation>
    </message>
    <message>
        <source>Gusts</source>
        <translation>Böen</translation>
    </message>
    <message>
        <source>Whirl</source>
        <translation>Wirbel</translation>
    </message>
    <message>
        <source>Applies the values of a custom profile</source>
        <translation>Wendet die Werte eines eigenen Profils an</translation>
    </message>
    <message>
        <source>Load Profile…</source>
        <translation>Profil laden…</translation>
    </message>
    <message>
        <source>Saves the values that the panel shows as a custom profile</source>
        <translation>Speichert die Werte, die das Bedienfeld zeigt, als eigenes Profil</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>Profil speichern…</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>Steter Wind</translation>
    </message>
</context>
<context>
    <name>SoftClothProperty</name>
    <message>
        <source>Fold or unfold the property settings</source>
        <translation>Eigenschaften auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms</source>
        <translation>Masse des Stoffs in Kilogramm</translation>
    </message>
    <message>
        <source>M&amp;ass</source>
        <translation>&amp;Masse</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms. How hard it is to push the cloth around.</source>
        <translation>Masse des Stoffs in Kilogramm. Wie schwer sich der Stoff herumschieben lässt.</translation>
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
        <translation>Wie oft pro Sekunde der Stoff berechnet wird, in Hertz</translation>
    </message>
    <message>
        <source>Solver Fre&amp;quency</source>
        <translation>Solver-Fre&amp;quenz</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz. More makes it steadier and stiffer, and costs simulation time.</source>
        <translation>Wie oft pro Sekunde der Stoff berechnet wird, in Hertz. Mehr macht ihn ruhiger und steifer und kostet Rechenzeit.</translation>
    </message>
    <message>
        <source>Solver Frequency</source>
        <translation>Solver-Frequenz</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1</source>
        <translation>Wie gut der Stoff an dem haftet, was er berührt, von 0 bis 1</translation>
    </message>
    <message>
        <source>F&amp;riction</source>
        <translation>Reib&amp;ung</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1. 0 slides freely, 1 hardly slides at all.</source>
        <translation>Wie gut der Stoff an dem haftet, was er berührt, von 0 bis 1. Bei 0 gleitet er frei, bei 1 kaum noch.</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Reibung</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1</source>
        <translation>Wie schnell die Bewegung des Stoffs abklingt, von 0 bis 1</translation>
    </message>
    <message>
        <source>&amp;Damping</source>
        <translation>Däm&amp;pfung</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1. 0 lets it swing on, 1 calms it at once.</source>
        <translation>Wie schnell die Bewegung des Stoffs abklingt, von 0 bis 1. Bei 0 schwingt er weiter, bei 1 kommt er sofort zur Ruhe.</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>Dämpfung</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1</source>
        <translation>Wie stark die Luft den Stoff zurückhält, von 0 bis 1</translation>
    </message>
    <message>
        <source>Dra&amp;g</source>
        <translation>Lu&amp;ftwiderstand</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1. 0 cuts through the air, 1 is carried along with it.</source>
        <translation>Wie stark die Luft den Stoff zurückhält, von 0 bis 1. Bei 0 durchschneidet er die Luft, bei 1 wird er von ihr mitgetragen.</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Luftwiderstand</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest</source>
        <translation>Wie weit sich der Stoff von seiner Befestigung entfernen darf, als Vielfaches seiner Länge in Ruhe</translation>
    </message>
    <message>
        <source>Tet&amp;her Limit</source>
        <translation>A&amp;nbindungsgrenze</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest. At 1 it never gets longer than it was modelled.</source>
        <translation>Wie weit sich der Stoff von seiner Befestigung entfernen darf, als Vielfaches seiner Länge in Ruhe. Bei 1 wird er nie länger als modelliert.</translation>
    </message>
    <message>
        <source>Tether Limit</source>
        <translation>Anbindungsgrenze</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101</source>
        <translation>Wie streng die Anbindungsgrenze gilt, von 1 bis 101</translation>
    </message>
    <message>
        <source>&amp;Tether Stiffness</source>
        <translation>Anbindungs&amp;steifigkeit</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101. 1 is the strictest, 101 lets the cloth pass the limit.</source>
        <translation>Wie streng die Anbindungsgrenze gilt, von 1 bis 101. 1 ist am strengsten, bei 101 darf der Stoff die Grenze überschreiten.</translation>
    </message>
    <message>
        <source>Tether Stiffness</source>
        <translation>Anbindungssteifigkeit</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent</source>
        <translation>Wie viel Steifigkeit gegen Dehnung weggenommen wird, in Prozent</translation>
    </message>
    <message>
        <source>&amp;Stiffness</source>
        <translation>Ste&amp;ifigkeit</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent. At 0 % the cloth keeps its size, at 100 % it stretches freely; below 0 % it is stiffer still.</source>
        <translation>Wie viel Steifigkeit gegen Dehnung weggenommen wird, in Prozent. Bei 0 % behält der Stoff seine Größe, bei 100 % dehnt er sich frei; unter 0 % ist er noch steifer.</translation>
    </message>
    <message>
        <source>Stiffness</source>
        <translation>Steifigkeit</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent</source>
        <translation>Wie viel Steifigkeit gegen Biegung weggenommen wird, in Prozent</translation>
    </message>
    <message>
        <source>&amp;Bending</source>
        <translation>Bi&amp;egung</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent. At 0 % the cloth hardly folds, at 100 % it folds freely; below 0 % it is stiffer still.</source>
        <translation>Wie viel Steifigkeit gegen Biegung weggenommen wird, in Prozent. Bei 0 % faltet sich der Stoff kaum, bei 100 % frei; unter 0 % ist er noch steifer.</translation>
    </message>
    <message>
        <source>Bending</source>
        <translation>Biegung</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths</source>
        <translation>Wie viel von der Bewegung seines Objekts den Stoff erreicht, in Zehnteln</translation>
    </message>
    <message>
        <source>&amp;Inertia Scale</source>
        <translation>Träg&amp;heitsfaktor</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths. At 0 nothing reaches it, at 10 all, at 20 twice as much; applies to straight movement, turning and centrifugal force alike.</source>
        <translation>Wie viel von der Bewegung seines Objekts den Stoff erreicht, in Zehnteln. Bei 0 erreicht ihn nichts, bei 10 alles, bei 20 doppelt so viel; gilt für gerade Bewegung, Drehung und Fliehkraft gleichermaßen.</translation>
    </message>
    <message>
        <source>Inertia Scale</source>
        <translation>Trägheitsfaktor</translation>
    </message>
</context>
<context>
    <name>SoftClothWindSetting</name>
    <message>
        <source>Fold or unfold the wind settings</source>
        <translation>Windeinstellungen auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Steady push of the wind along each axis, in scene units per second squared</source>
        <translation>Gleichmäßiger Schub des Winds entlang jeder Achse, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>External Acceleration</source>
        <translation>Äußere Beschleunigung</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared</source>
        <translation>Gleichmäßiger Schub des Winds entlang X, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Gleichmäßiger Schub des Winds entlang X, in Szeneneinheiten pro Quadratsekunde. Eine negative Zahl bläst in die andere Richtung.</translation>
    </message>
    <message>
        <source>External acceleration X</source>
        <translation>Äußere Beschleunigung X</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared</source>
        <translation>Gleichmäßiger Schub des Winds entlang Y, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Gleichmäßiger Schub des Winds entlang Y, in Szeneneinheiten pro Quadratsekunde. Eine negative Zahl bläst in die andere Richtung.</translation>
    </message>
    <message>
        <source>External acceleration Y</source>
        <translation>Äußere Beschleunigung Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared</source>
        <translation>Gleichmäßiger Schub des Winds entlang Z, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Gleichmäßiger Schub des Winds entlang Z, in Szeneneinheiten pro Quadratsekunde. Eine negative Zahl bläst in die andere Richtung.</translation>
    </message>
    <message>
        <source>External acceleration Z</source>
        <translation>Äußere Beschleunigung Z</translation>
    </message>
    <message>
        <source>Largest random push of the wind along each axis, in scene units per second squared</source>
        <translation>Größter zufälliger Schub des Winds entlang jeder Achse, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>Random Acceleration</source>
        <translation>Zufällige Beschleunigung</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared</source>
        <translation>Größter zufälliger Schub des Winds entlang X, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Größter zufälliger Schub des Winds entlang X, in Szeneneinheiten pro Quadratsekunde. Er kommt und geht mit der Windfrequenz.</translation>
    </message>
    <message>
        <source>Random acceleration X</source>
        <translation>Zufällige Beschleunigung X</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared</source>
        <translation>Größter zufälliger Schub des Winds entlang Y, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Größter zufälliger Schub des Winds entlang Y, in Szeneneinheiten pro Quadratsekunde. Er kommt und geht mit der Windfrequenz.</translation>
    </message>
    <message>
        <source>Random acceleration Y</source>
        <translation>Zufällige Beschleunigung Y</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared</source>
        <translation>Größter zufälliger Schub des Winds entlang Z, in Szeneneinheiten pro Quadratsekunde</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Größter zufälliger Schub des Winds entlang Z, in Szeneneinheiten pro Quadratsekunde. Er kommt und geht mit der Windfrequenz.</translation>
    </message>
    <message>
        <source>Random acceleration Z</source>
        <translation>Zufällige Beschleunigung Z</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz</source>
        <translation>Wie oft sich der zufällige Schub ändert, in Hertz</translation>
    </message>
    <message>
        <source>Wind Freq&amp;uency</source>
        <translation>Windfrequen&amp;z</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz. 0 keeps it as it is.</source>
        <translation>Wie oft sich der zufällige Schub ändert, in Hertz. 0 lässt ihn, wie er ist.</translation>
    </message>
    <message>
        <source>Wind Frequency</source>
        <translation>Windfrequenz</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles</source>
        <translation>Wie stark der zufällige Schub schwankt: Er wird mit einer Zufallszahl zwischen den beiden Griffen multipliziert</translation>
    </message>
    <message>
        <source>Rand&amp;om Factor</source>
        <translation>Zuf&amp;allsfaktor</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles. Drag a handle or use the arrow keys to move it; the handles keep their order.</source>
        <translation>Wie stark der zufällige Schub schwankt: Er wird mit einer Zufallszahl zwischen den beiden Griffen multipliziert. Ziehen Sie an einem Griff oder nehmen Sie die Pfeiltasten, um ihn zu verschieben; die Griffe behalten ihre Reihenfolge.</translation>
    </message>
    <message>
        <source>Random Factor</source>
        <translation>Zufallsfaktor</translation>
    </message>
    <message>
        <source>Smallest factor</source>
        <translation>Kleinster Faktor</translation>
    </message>
    <message>
        <source>from 0</source>
        <translation>von 0</translation>
    </message>
    <message>
        <source>Largest factor</source>
        <translation>Größter Faktor</translation>
    </message>
    <message>
        <source>to 10</source>
        <translation>bis 10</translation>
    </message>
</context>
</TS>
