<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Host::CallJournal</name>
    <message>
        <source>Only the last calls are kept: the first %L1 since the journal was emptied are gone.</source>
        <translation>Nur die letzten Aufrufe bleiben erhalten: Die ersten %L1 seit dem Leeren der Liste sind weg.</translation>
    </message>
</context>
<context>
    <name>Host::CallJournalModel</name>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>Host::Centre</name>
    <message>
        <source>The model is not shown, because there is no OpenGL 3.3 on this display.</source>
        <translation>Das Modell wird nicht gezeigt, weil es auf diesem Bildschirm kein OpenGL 3.3 gibt.</translation>
    </message>
    <message>
        <source>The model is not shown, because this workbench was built without a view of it.</source>
        <translation>Das Modell wird nicht gezeigt, weil diese Workbench ohne eine Ansicht davon gebaut wurde.</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>Host-Aufrufe</translation>
    </message>
</context>
<context>
    <name>Host::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Delete Object</source>
        <translation>Objekt &amp;löschen</translation>
    </message>
    <message>
        <source>Image &amp;Editor…</source>
        <translation>Bild&amp;editor…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Bildeditor</translation>
    </message>
    <message>
        <source>Program that opens weight images; empty for what the desktop opens them with:</source>
        <translation>Programm, das Gewichtsbilder öffnet; leer für das Programm, mit dem der Desktop sie öffnet:</translation>
    </message>
</context>
<context>
    <name>Host::HostApplication</name>
    <message>
        <source>Import %1</source>
        <translation>%1 importieren</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Soft cloth on</source>
        <translation>Weicher Stoff ein</translation>
    </message>
    <message>
        <source>Soft cloth off</source>
        <translation>Weicher Stoff aus</translation>
    </message>
    <message>
        <source>Cancel soft cloth</source>
        <translation>Weichen Stoff aufheben</translation>
    </message>
    <message>
        <source>embedded weight image</source>
        <translation>eingebettetes Gewichtsbild</translation>
    </message>
    <message>
        <source>Load weight image %1</source>
        <translation>Gewichtsbild %1 laden</translation>
    </message>
    <message>
        <source>Delete weight image</source>
        <translation>Gewichtsbild löschen</translation>
    </message>
    <message>
        <source>Embed weight image</source>
        <translation>Gewichtsbild einbetten</translation>
    </message>
    <message>
        <source>Adjust weight image</source>
        <translation>Gewichtsbild anpassen</translation>
    </message>
    <message>
        <source>The edited weight image is black wherever the material has vertices; the former one is kept.</source>
        <translation>Das bearbeitete Gewichtsbild ist überall schwarz, wo das Material Punkte hat; das vorherige wird behalten.</translation>
    </message>
    <message>
        <source>Edit weight image</source>
        <translation>Gewichtsbild bearbeiten</translation>
    </message>
    <message>
        <source>The weight image could not be saved as &quot;%1&quot;: %2.</source>
        <translation>Das Gewichtsbild konnte nicht als „%1“ gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>es gibt keines</translation>
    </message>
    <message>
        <source>the material is linked to this file, whose image would be adjusted again</source>
        <translation>das Material ist mit dieser Datei verknüpft, deren Bild noch einmal angepasst würde</translation>
    </message>
    <message>
        <source>images of this format cannot be written</source>
        <translation>Bilder dieses Formats können nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Convert to rigid body</source>
        <translation>In starren Körper umwandeln</translation>
    </message>
    <message>
        <source>World gravity</source>
        <translation>Weltschwerkraft</translation>
    </message>
    <message>
        <source>Ignore materials</source>
        <translation>Materialien ausnehmen</translation>
    </message>
    <message>
        <source>Soft cloth property</source>
        <translation>Eigenschaft des weichen Stoffs</translation>
    </message>
    <message>
        <source>Soft cloth collision</source>
        <translation>Kollision des weichen Stoffs</translation>
    </message>
    <message>
        <source>Soft cloth wind</source>
        <translation>Wind des weichen Stoffs</translation>
    </message>
    <message>
        <source>Add %1 to the soft cloth</source>
        <translation>%1 zum weichen Stoff hinzufügen</translation>
    </message>
    <message>
        <source>Take %1 out of the soft cloth</source>
        <translation>%1 aus dem weichen Stoff nehmen</translation>
    </message>
    <message>
        <source>Load weight image</source>
        <translation>Gewichtsbild laden</translation>
    </message>
    <message>
        <source>Load soft cloth settings</source>
        <translation>Einstellungen des weichen Stoffs laden</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>embedded texture of %1</source>
        <translation>eingebettete Textur von %1</translation>
    </message>
    <message>
        <source>Make soft cloth</source>
        <translation>Weichen Stoff erzeugen</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>%1 Objekte löschen</translation>
    </message>
    <message>
        <source>The mesh &quot;%1&quot; has no texture coordinates, which would say where the image lies on it.</source>
        <translation>Das Mesh „%1“ hat keine Texturkoordinaten, die angeben würden, wo das Bild auf ihm liegt.</translation>
    </message>
    <message>
        <source>The model &quot;%1&quot; is too large for this scene: %2.</source>
        <translation>Das Modell „%1“ ist zu groß für diese Szene: %2.</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.bmp)</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</source>
        <translation>Bilder (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</translation>
    </message>
    <message>
        <source>Keep UV Layout</source>
        <translation>UV-Layout ablegen</translation>
    </message>
</context>
<context>
    <name>Host::HostCallsView</name>
    <message>
        <source>Filter calls, for example SetSoftCloth</source>
        <translation>Aufrufe filtern, zum Beispiel SetSoftCloth</translation>
    </message>
    <message>
        <source>Shows only the calls that contain this text</source>
        <translation>Zeigt nur die Aufrufe, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the whole journal as text</source>
        <translation>Kopiert das ganze Protokoll als Text</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Empties the journal</source>
        <translation>Leert das Protokoll</translation>
    </message>
    <message>
        <source>Filter of the host calls</source>
        <translation>Filter der Host-Aufrufe</translation>
    </message>
    <message>
        <source>Host calls</source>
        <translation>Host-Aufrufe</translation>
    </message>
</context>
<context>
    <name>Host::HostControls</name>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Family A (0x7)</source>
        <translation>Familie A (0x7)</translation>
    </message>
    <message>
        <source>Family B (0x1800000)</source>
        <translation>Familie B (0x1800000)</translation>
    </message>
    <message>
        <source>Neither</source>
        <translation>Keine von beiden</translation>
    </message>
    <message>
        <source>The application that runs the plug-in. Another choice starts the plug-in again.</source>
        <translation>Die Anwendung, in der das Plug-in läuft. Eine andere Wahl startet das Plug-in neu.</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Physics engine of the scene. The panel is shown for engine 1 only.</source>
        <translation>Physik-Engine der Szene. Das Bedienfeld wird nur bei Engine 1 gezeigt.</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
    </message>
    <message>
        <source>Selected object</source>
        <translation>Ausgewähltes Objekt</translation>
    </message>
    <message>
        <source>Soft cloth physics</source>
        <translation>Physik des weichen Stoffs</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the object, as the host&apos;s own menus would</source>
        <translation>Schaltet die Physik des weichen Stoffs für das Objekt, wie es die Menüs des Hosts täten</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Type code. Shown types: 1 to 6, 30 to 34, 38, 39, 51 to 53. Types 5 and 6 can be converted.</source>
        <translation>Typnummer. Gezeigte Typen: 1 bis 6, 30 bis 34, 38, 39, 51 bis 53. Die Typen 5 und 6 können umgewandelt werden.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Kind code. Kind 14 has no choice of rigid body or soft cloth.</source>
        <translation>Artnummer. Art 14 hat keine Wahl zwischen starrem Körper und weichem Stoff.</translation>
    </message>
    <message>
        <source>Convert state</source>
        <translation>Umwandlung</translation>
    </message>
    <message>
        <source>3 is at rest; another state of a type 5 or 6 object hides the panel in family A</source>
        <translation>3 ist Ruhe; ein anderer Zustand eines Objekts vom Typ 5 oder 6 verbirgt das Bedienfeld in Familie A</translation>
    </message>
    <message>
        <source>Hides the panel for this object</source>
        <translation>Verbirgt das Bedienfeld für dieses Objekt</translation>
    </message>
    <message>
        <source>Blocked in family A</source>
        <translation>In Familie A gesperrt</translation>
    </message>
    <message>
        <source>Blocked in family B</source>
        <translation>In Familie B gesperrt</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
    <message>
        <source>None (0)</source>
        <translation>Keiner (0)</translation>
    </message>
    <message>
        <source>Weight map (25)</source>
        <translation>Gewichtskarte (25)</translation>
    </message>
    <message>
        <source>Another (7)</source>
        <translation>Ein anderer (7)</translation>
    </message>
    <message>
        <source>Dialog mode</source>
        <translation>Dialogmodus</translation>
    </message>
    <message>
        <source>Material (7)</source>
        <translation>Material (7)</translation>
    </message>
    <message>
        <source>Another (3)</source>
        <translation>Ein anderer (3)</translation>
    </message>
    <message>
        <source>Pick mode</source>
        <translation>Aufnahmemodus</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Events by hand</source>
        <translation>Ereignisse von Hand</translation>
    </message>
    <message>
        <source>Topology (0x2)</source>
        <translation>Topologie (0x2)</translation>
    </message>
    <message>
        <source>Replaced (0x4)</source>
        <translation>Ersetzt (0x4)</translation>
    </message>
    <message>
        <source>Material list (0x8)</source>
        <translation>Materialliste (0x8)</translation>
    </message>
    <message>
        <source>Removed (0x40)</source>
        <translation>Entfernt (0x40)</translation>
    </message>
    <message>
        <source>Material names (0x100)</source>
        <translation>Materialnamen (0x100)</translation>
    </message>
    <message>
        <source>Sends that the data of the selected objects have changed</source>
        <translation>Meldet, dass sich die Daten der ausgewählten Objekte geändert haben</translation>
    </message>
    <message>
        <source>Data changed</source>
        <translation>Daten geändert</translation>
    </message>
    <message>
        <source>Sends this event to the plug-in</source>
        <translation>Sendet dieses Ereignis an das Plug-in</translation>
    </message>
    <message>
        <source>Hierarchy changed</source>
        <translation>Hierarchie geändert</translation>
    </message>
    <message>
        <source>Undo or redo done</source>
        <translation>Rückgängig oder wiederholt</translation>
    </message>
    <message>
        <source>About to convert</source>
        <translation>Vor der Umwandlung</translation>
    </message>
    <message>
        <source>Several materials detected</source>
        <translation>Mehrere Materialien erkannt</translation>
    </message>
    <message>
        <source>Edited image saved</source>
        <translation>Bearbeitetes Bild gespeichert</translation>
    </message>
    <message>
        <source>Failing calls</source>
        <translation>Scheiternde Aufrufe</translation>
    </message>
    <message>
        <source>GetSoftClothCollision</source>
        <translation>GetSoftClothCollision</translation>
    </message>
    <message>
        <source>Host operation that is to fail, as the Host Calls view names it</source>
        <translation>Operation des Hosts, die scheitern soll, mit ihrem Namen in den Host-Aufrufen</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Status that the failing call answers</source>
        <translation>Status, den der scheiternde Aufruf zurückgibt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Let it fail</source>
        <translation>Scheitern lassen</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>Alle beheben</translation>
    </message>
</context>
<context>
    <name>Host::ImageEditor</name>
    <message>
        <source>there is no folder for temporary files</source>
        <translation>es gibt keinen Ordner für temporäre Dateien</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; for the image editor could not be written: %2.</source>
        <translation>Die Datei „%1“ für den Bildeditor konnte nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>Host::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Systemsprache</translation>
    </message>
</context>
<context>
    <name>Host::Legend</name>
    <message>
        <source>Held (black)</source>
        <translation>Gehalten (schwarz)</translation>
    </message>
    <message>
        <source>Free (white)</source>
        <translation>Frei (weiß)</translation>
    </message>
    <message>
        <source>No weight image</source>
        <translation>Kein Gewichtsbild</translation>
    </message>
    <message>
        <source>Legend of the weights</source>
        <translation>Legende der Gewichte</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Host Controls</source>
        <translation>Host-Steuerung</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>The page of the host&apos;s panels that the plug-in asked for last</source>
        <translation>Die Seite der Bedienfelder des Hosts, die das Plug-in zuletzt verlangt hat</translation>
    </message>
    <message>
        <source>Panel page %1, place %2, option %3</source>
        <translation>Bedienfeldseite %1, Platz %2, Option %3</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Ansi&amp;cht</translation>
    </message>
</context>
<context>
    <name>Host::MovingVertices</name>
    <message>
        <source>How many vertices of the chosen material the weight image lets move. More than %L1 are slow to simulate.</source>
        <translation>Wie viele Punkte des gewählten Materials das Gewichtsbild sich bewegen lässt. Mehr als %L1 sind langsam zu simulieren.</translation>
    </message>
    <message>
        <source>%1: %L2 of %L3 vertices move</source>
        <translation>%1: %L2 von %L3 Punkten bewegen sich</translation>
    </message>
</context>
<context>
    <name>Host::PanelActions</name>
    <message>
        <source>&amp;Weight Map Dialog</source>
        <translation>&amp;Gewichtskarten-Dialog</translation>
    </message>
    <message>
        <source>Opens or closes the dialog that chooses the material and its weight image</source>
        <translation>Öffnet oder schließt den Dialog, in dem das Material und sein Gewichtsbild gewählt werden</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>Weicher Stoff</translation>
    </message>
</context>
<context>
    <name>Host::PickGuide</name>
    <message>
        <source>Click a material to pick it; Escape ends picking.</source>
        <translation>Material durch Anklicken wählen; Esc beendet die Auswahl.</translation>
    </message>
</context>
<context>
    <name>Host::RecentFiles</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>Host::SceneFiles</name>
    <message>
        <source>Soft cloth scenes (*.clothscene)</source>
        <translation>Stoffszenen (*.clothscene)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>&amp;Neue Szene</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>Szene ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Import Model…</source>
        <translation>Modell &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Recent Files</source>
        <translation>&amp;Zuletzt verwendete Dateien</translation>
    </message>
    <message>
        <source>&amp;Save Scene</source>
        <translation>Szene &amp;speichern</translation>
    </message>
    <message>
        <source>Save Scene &amp;As…</source>
        <translation>Szene speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import cancelled</source>
        <translation>Import abgebrochen</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Import Model</source>
        <translation>Modell importieren</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>Modelle (*.%1)</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>Szene öffnen</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The scene has changes that are not saved.</source>
        <translation>Die Szene hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>Host::SceneTree</name>
    <message>
        <source>Objects of the scene</source>
        <translation>Objekte der Szene</translation>
    </message>
</context>
<context>
    <name>Host::UnitDialog</name>
    <message>
        <source>Import Model</source>
        <translation>Modell importieren</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say in which unit it was made.</source>
        <translation>„%1“ nennt keine Maßeinheit.</translation>
    </message>
    <message>
        <source>&amp;Unit of the file</source>
        <translation>&amp;Einheit der Datei</translation>
    </message>
    <message>
        <source>Largest side</source>
        <translation>Größte Seite</translation>
    </message>
    <message>
        <source>%1 cm in the scene</source>
        <translation>%1 cm in der Szene</translation>
    </message>
</context>
<context>
    <name>Host::ViewActions</name>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>&amp;Auswahl einpassen</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>A&amp;lles einpassen</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>&amp;Vorne</translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation>&amp;Seite</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>Shows the weight images on the model: what is held and what moves freely</source>
        <translation>Zeigt die Gewichtsbilder auf dem Modell: was gehalten wird und was sich frei bewegt</translation>
    </message>
    <message>
        <source>Show Wei&amp;ghts</source>
        <translation>&amp;Gewichte zeigen</translation>
    </message>
</context>
<context>
    <name>Host::ViewTexts</name>
    <message>
        <source>Grid: %1 cm</source>
        <translation>Raster: %1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewedScene</name>
    <message>
        <source>Triangles that cannot be shown, because a corner is nowhere: %L1</source>
        <translation>Dreiecke, die nicht gezeigt werden können, weil eine Ecke nirgends liegt: %L1</translation>
    </message>
    <message>
        <source>Textures that cannot be read: %1</source>
        <translation>Texturen, die nicht gelesen werden können: %1</translation>
    </message>
</context>
<context>
    <name>Host::ViewportWidget</name>
    <message>
        <source>View of the model</source>
        <translation>Ansicht des Modells</translation>
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
        <translation>Es ist kein JPEG-, BMP-, GIF-, PNG- oder TGA-Bild</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 on a side are too many</source>
        <translation>Es hat %1 x %2 Pixel, und mehr als %3 auf einer Seite sind zu viele</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 in all are too many</source>
        <translation>Es hat %1 x %2 Pixel, und mehr als %3 insgesamt sind zu viele</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>Es ist unvollständig</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>Es ist beschädigt</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>Es ist leer</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>Es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>Es ist keine Datei</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>Es ist nicht genug Speicher vorhanden</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2.</source>
        <translation>Das Bild „%1“ konnte nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>ModelText</name>
    <message>
        <source>The model file &quot;%1&quot; could not be read: %2</source>
        <translation>Die Modelldatei „%1“ konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The model in &quot;%1&quot; is too large: %2.</source>
        <translation>Das Modell in „%1“ ist zu groß: %2.</translation>
    </message>
    <message>
        <source>There is no model file &quot;%1&quot;.</source>
        <translation>Es gibt keine Modelldatei „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is empty.</source>
        <translation>Die Modelldatei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is too large.</source>
        <translation>Die Modelldatei „%1“ ist zu groß.</translation>
    </message>
    <message>
        <source>it is damaged.</source>
        <translation>Sie ist beschädigt.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; holds no surfaces.</source>
        <translation>Die Modelldatei „%1“ enthält keine Flächen.</translation>
    </message>
</context>
<context>
    <name>PanelHint</name>
    <message>
        <source>The scene is empty. Import a model with File &gt; Import Model, or drop its file on this window.</source>
        <translation>Die Szene ist leer. Importieren Sie ein Modell mit Datei &gt; Modell importieren, oder ziehen Sie seine Datei auf dieses Fenster.</translation>
    </message>
    <message>
        <source>Click an object in the scene to edit its soft cloth.</source>
        <translation>Klicken Sie ein Objekt der Szene an, um seinen weichen Stoff zu bearbeiten.</translation>
    </message>
    <message>
        <source>Several objects are selected. Select one alone to edit its soft cloth.</source>
        <translation>Mehrere Objekte sind ausgewählt. Wählen Sie eines allein aus, um seinen weichen Stoff zu bearbeiten.</translation>
    </message>
    <message>
        <source>Soft cloth needs physics engine 1: see Host Controls.</source>
        <translation>Weicher Stoff braucht die Physik-Engine 1: siehe Host-Steuerung.</translation>
    </message>
    <message>
        <source>There is no soft cloth for this object. Its type, its kind or a block may keep it out: see Host Controls.</source>
        <translation>Für dieses Objekt gibt es keinen weichen Stoff. Sein Typ, seine Art oder eine Sperre kann der Grund sein: siehe Host-Steuerung.</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>%1 is not a plug-in for this host.</source>
        <translation>%1 ist kein Plug-in für diesen Host.</translation>
    </message>
    <message>
        <source>%1 does not work in this host.</source>
        <translation>%1 funktioniert in diesem Host nicht.</translation>
    </message>
    <message>
        <source>%1 did not start (0x%2).</source>
        <translation>%1 ist nicht gestartet (0x%2).</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for this host: %2</source>
        <translation>%1 ist kein Plug-in für diesen Host: %2</translation>
    </message>
    <message>
        <source>There is no resource file &quot;%1&quot;.</source>
        <translation>Es gibt keine Ressourcendatei „%1“.</translation>
    </message>
</context>
<context>
    <name>PreviewText</name>
    <message>
        <source>The preview stopped because the cloth got out of control. Reset starts it again.</source>
        <translation>Die Vorschau wurde angehalten, weil der Stoff außer Kontrolle geriet. Zurücksetzen startet sie neu.</translation>
    </message>
</context>
<context>
    <name>Scene</name>
    <message>
        <source>Several values</source>
        <translation>Mehrere Werte</translation>
    </message>
</context>
<context>
    <name>SceneText</name>
    <message>
        <source>is named a second time</source>
        <translation>wird ein zweites Mal genannt</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is both linked and embedded</source>
        <translation>ist sowohl verknüpft als auch eingebettet</translation>
    </message>
    <message>
        <source>is damaged: its check sum does not fit</source>
        <translation>ist beschädigt: Die Prüfsumme passt nicht</translation>
    </message>
    <message>
        <source>does not hold as many items as it says</source>
        <translation>enthält nicht so viele Einträge wie angegeben</translation>
    </message>
    <message>
        <source>cannot be unpacked</source>
        <translation>kann nicht entpackt werden</translation>
    </message>
    <message>
        <source>its values are nested more than %1 levels deep</source>
        <translation>Die Werte sind mehr als %1 Ebenen tief verschachtelt</translation>
    </message>
    <message>
        <source>it has more than %1 values</source>
        <translation>Die Datei hat mehr als %1 Werte</translation>
    </message>
    <message>
        <source>must be a group of values</source>
        <translation>muss eine Gruppe von Werten sein</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>must be a list</source>
        <translation>muss eine Liste sein</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>muss wahr (true) oder falsch (false) sein</translation>
    </message>
    <message>
        <source>must be text</source>
        <translation>muss ein Text sein</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>muss eine Zahl sein</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>muss eine ganze Zahl von %1 bis %2 sein</translation>
    </message>
    <message>
        <source>is not valid base64</source>
        <translation>ist kein gültiges Base64</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>das Dokument</translation>
    </message>
    <message>
        <source>The scene could not be saved as &quot;%1&quot;: %2.</source>
        <translation>Die Szene konnte nicht als „%1“ gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; could not be loaded: %2.</source>
        <translation>Die Szenendatei „%1“ konnte nicht geladen werden: %2.</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>Der Name fehlt</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>Dort ist keine Datei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>Sie ist zu groß</translation>
    </message>
    <message>
        <source>There is no scene file &quot;%1&quot;.</source>
        <translation>Es gibt keine Szenendatei „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; is empty.</source>
        <translation>Die Szenendatei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>it is damaged or no scene file at all (%1 at byte %2)</source>
        <translation>Sie ist beschädigt oder gar keine Szenendatei (%1 bei Byte %2)</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>Es ist nicht genug Speicher vorhanden</translation>
    </message>
    <message>
        <source>must be a list of 4 numbers</source>
        <translation>muss eine Liste von 4 Zahlen sein</translation>
    </message>
    <message>
        <source>is %1, which is in use already</source>
        <translation>ist %1, was schon verwendet wird</translation>
    </message>
    <message>
        <source>has a texture already</source>
        <translation>hat schon eine Textur</translation>
    </message>
    <message>
        <source>must hold three indices per triangle</source>
        <translation>muss drei Indizes pro Dreieck enthalten</translation>
    </message>
    <message>
        <source>names a vertex that the mesh does not have</source>
        <translation>nennt einen Punkt, den das Mesh nicht hat</translation>
    </message>
    <message>
        <source>names a material that the object does not have</source>
        <translation>nennt ein Material, das das Objekt nicht hat</translation>
    </message>
    <message>
        <source>must hold one item per vertex or none</source>
        <translation>muss einen Eintrag pro Punkt enthalten oder keinen</translation>
    </message>
    <message>
        <source>has a slot on this mesh already</source>
        <translation>hat schon einen Platz auf diesem Mesh</translation>
    </message>
    <message>
        <source>is no object of the scene</source>
        <translation>ist kein Objekt der Szene</translation>
    </message>
    <message>
        <source>changes something that the scene does not have</source>
        <translation>ändert etwas, das die Szene nicht hat</translation>
    </message>
    <message>
        <source>it is no scene of this application</source>
        <translation>Es ist keine Szene dieser Anwendung</translation>
    </message>
    <message>
        <source>it was written by a newer version of this application</source>
        <translation>Sie wurde von einer neueren Version dieser Anwendung geschrieben</translation>
    </message>
    <message>
        <source>it has %1 meshes, and more than %2 are too many</source>
        <translation>%1 Meshes sind vorhanden, mehr als %2 sind zu viele</translation>
    </message>
    <message>
        <source>it has %1 materials, and more than %2 are too many</source>
        <translation>%1 Materialien sind vorhanden, mehr als %2 sind zu viele</translation>
    </message>
    <message>
        <source>it has %1 vertices, and more than %2 are too many</source>
        <translation>%1 Punkte sind vorhanden, mehr als %2 sind zu viele</translation>
    </message>
    <message>
        <source>it has %1 triangles, and more than %2 are too many</source>
        <translation>%1 Dreiecke sind vorhanden, mehr als %2 sind zu viele</translation>
    </message>
    <message>
        <source>must be a whole number in quotation marks</source>
        <translation>muss eine ganze Zahl in Anführungszeichen sein</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>liegt außerhalb des Wertebereichs</translation>
    </message>
    <message>
        <source>must be a list of %1 numbers</source>
        <translation>muss eine Liste von %1 Zahlen sein</translation>
    </message>
    <message>
        <source>must be %1 bytes</source>
        <translation>muss %1 Bytes lang sein</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>Millimetre</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Centimetre</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>Meter</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A stand-in host for the soft cloth physics panel.</source>
        <translation>Ein Ersatzhost für das Bedienfeld der Physik weicher Stoffe.</translation>
    </message>
    <message>
        <source>Model or scene file; the demo character without.</source>
        <translation>Modell- oder Szenendatei; ohne Angabe die Demofigur.</translation>
    </message>
    <message>
        <source>Application family: a, b or none.</source>
        <translation>Familie der Anwendung: a, b oder none.</translation>
    </message>
    <message>
        <source>The plug-in library to load.</source>
        <translation>Die Plug-in-Bibliothek, die geladen wird.</translation>
    </message>
    <message>
        <source>Run the main job unattended and write pictures into this folder.</source>
        <translation>Die Hauptaufgabe ohne Bedienung ausführen und Bilder in diesen Ordner schreiben.</translation>
    </message>
    <message>
        <source>Program, with its options, that opens images in place of the one chosen.</source>
        <translation>Programm mit seinen Optionen, das Bilder anstelle des gewählten öffnet.</translation>
    </message>
    <message>
        <source>Language in place of the one chosen, for example de or zh_TW.</source>
        <translation>Sprache anstelle der gewählten, zum Beispiel de oder zh_TW.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;, but these: %2.</source>
        <translation>Es gibt keine Sprache „%1“, sondern diese: %2.</translation>
    </message>
    <message>
        <source>There is no application family &quot;%1&quot;, but these: a, b, none.</source>
        <translation>Es gibt keine Anwendungsfamilie „%1“, sondern diese: a, b, none.</translation>
    </message>
    <message>
        <source>Only one model can be opened; &quot;%1&quot; is one too many.</source>
        <translation>Nur ein Modell kann geöffnet werden; „%1“ ist eines zu viel.</translation>
    </message>
    <message>
        <source>Unit of a model whose file does not name one, in place of asking: %1.</source>
        <translation>Einheit eines Modells, dessen Datei keine nennt, statt zu fragen: %1.</translation>
    </message>
    <message>
        <source>There is no unit &quot;%1&quot;, but these: %2.</source>
        <translation>Es gibt keine Einheit „%1“, sondern diese: %2.</translation>
    </message>
</context>
</TS>
