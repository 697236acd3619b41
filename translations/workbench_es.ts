<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Host::CallJournal</name>
    <message>
        <source>Only the last calls are kept: the first %L1 since the journal was emptied are gone.</source>
        <translation>Solo se conservan las últimas llamadas: las primeras %L1 desde que se vació el registro ya no están.</translation>
    </message>
</context>
<context>
    <name>Host::CallJournalModel</name>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
</context>
<context>
    <name>Host::Centre</name>
    <message>
        <source>The model is not shown, because there is no OpenGL 3.3 on this display.</source>
        <translation>El modelo no se muestra porque esta pantalla no dispone de OpenGL 3.3.</translation>
    </message>
    <message>
        <source>The model is not shown, because this workbench was built without a view of it.</source>
        <translation>El modelo no se muestra porque este programa se compiló sin una vista de él.</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>Llamadas al anfitrión</translation>
    </message>
</context>
<context>
    <name>Host::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Delete Object</source>
        <translation>&amp;Eliminar objeto</translation>
    </message>
    <message>
        <source>Image &amp;Editor…</source>
        <translation>Edi&amp;tor de imágenes…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Editor de imágenes</translation>
    </message>
    <message>
        <source>Program that opens weight images; empty for what the desktop opens them with:</source>
        <translation>Programa que abre las imágenes de pesos; vacío para el que usa el escritorio:</translation>
    </message>
</context>
<context>
    <name>Host::HostApplication</name>
    <message>
        <source>Import %1</source>
        <translation>Importar %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>Soft cloth on</source>
        <translation>Activar tela suave</translation>
    </message>
    <message>
        <source>Soft cloth off</source>
        <translation>Desactivar tela suave</translation>
    </message>
    <message>
        <source>Cancel soft cloth</source>
        <translation>Cancelar tela suave</translation>
    </message>
    <message>
        <source>embedded weight image</source>
        <translation>imagen de pesos incrustada</translation>
    </message>
    <message>
        <source>Load weight image %1</source>
        <translation>Cargar imagen de pesos %1</translation>
    </message>
    <message>
        <source>Delete weight image</source>
        <translation>Eliminar imagen de pesos</translation>
    </message>
    <message>
        <source>Embed weight image</source>
        <translation>Incrustar imagen de pesos</translation>
    </message>
    <message>
        <source>Adjust weight image</source>
        <translation>Ajustar imagen de pesos</translation>
    </message>
    <message>
        <source>The edited weight image is black wherever the material has vertices; the former one is kept.</source>
        <translation>La imagen de pesos editada es negra en todos los vértices del material; se conserva la anterior.</translation>
    </message>
    <message>
        <source>Edit weight image</source>
        <translation>Editar imagen de pesos</translation>
    </message>
    <message>
        <source>The weight image could not be saved as &quot;%1&quot;: %2.</source>
        <translation>No se pudo guardar la imagen de pesos como «%1»: %2.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>no hay ninguna</translation>
    </message>
    <message>
        <source>the material is linked to this file, whose image would be adjusted again</source>
        <translation>el material está vinculado a este archivo, cuya imagen se ajustaría otra vez</translation>
    </message>
    <message>
        <source>images of this format cannot be written</source>
        <translation>no se pueden escribir imágenes de este formato</translation>
    </message>
    <message>
        <source>Convert to rigid body</source>
        <translation>Convertir en cuerpo rígido</translation>
    </message>
    <message>
        <source>World gravity</source>
        <translation>Gravedad del mundo</translation>
    </message>
    <message>
        <source>Ignore materials</source>
        <translation>Excluir materiales</translation>
    </message>
    <message>
        <source>Soft cloth property</source>
        <translation>Propiedad de tela suave</translation>
    </message>
    <message>
        <source>Soft cloth collision</source>
        <translation>Colisión de tela suave</translation>
    </message>
    <message>
        <source>Soft cloth wind</source>
        <translation>Viento de tela suave</translation>
    </message>
    <message>
        <source>Add %1 to the soft cloth</source>
        <translation>Añadir %1 a la tela suave</translation>
    </message>
    <message>
        <source>Take %1 out of the soft cloth</source>
        <translation>Quitar %1 de la tela suave</translation>
    </message>
    <message>
        <source>Load weight image</source>
        <translation>Cargar imagen de pesos</translation>
    </message>
    <message>
        <source>Load soft cloth settings</source>
        <translation>Cargar ajustes de tela suave</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagen</translation>
    </message>
    <message>
        <source>embedded texture of %1</source>
        <translation>textura incrustada de %1</translation>
    </message>
    <message>
        <source>Make soft cloth</source>
        <translation>Crear tela suave</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>Eliminar %1 objetos</translation>
    </message>
    <message>
        <source>The model &quot;%1&quot; is too large for this scene: %2.</source>
        <translation>El modelo «%1» es demasiado grande para esta escena: %2.</translation>
    </message>
    <message>
        <source>The mesh &quot;%1&quot; has no texture coordinates, which would say where the image lies on it.</source>
        <translation>La malla «%1» no tiene coordenadas de textura, que dirían dónde queda la imagen sobre ella.</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp)</source>
        <translation>Imágenes (*.png *.jpg *.jpeg *.bmp)</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</source>
        <translation>Imágenes (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</translation>
    </message>
    <message>
        <source>Keep UV Layout</source>
        <translation>Guardar el despliegue UV</translation>
    </message>
</context>
<context>
    <name>Host::HostCallsView</name>
    <message>
        <source>Filter calls, for example SetSoftCloth</source>
        <translation>Filtrar llamadas, por ejemplo SetSoftCloth</translation>
    </message>
    <message>
        <source>Shows only the calls that contain this text</source>
        <translation>Muestra solo las llamadas que contienen este texto</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copies the whole journal as text</source>
        <translation>Copia todo el registro como texto</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Empties the journal</source>
        <translation>Vacía el registro</translation>
    </message>
    <message>
        <source>Filter of the host calls</source>
        <translation>Filtro de las llamadas al anfitrión</translation>
    </message>
    <message>
        <source>Host calls</source>
        <translation>Llamadas al anfitrión</translation>
    </message>
</context>
<context>
    <name>Host::HostControls</name>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Family A (0x7)</source>
        <translation>Familia A (0x7)</translation>
    </message>
    <message>
        <source>Family B (0x1800000)</source>
        <translation>Familia B (0x1800000)</translation>
    </message>
    <message>
        <source>Neither</source>
        <translation>Ninguna de las dos</translation>
    </message>
    <message>
        <source>The application that runs the plug-in. Another choice starts the plug-in again.</source>
        <translation>La aplicación en la que se ejecuta el complemento. Otra elección reinicia el complemento.</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familia</translation>
    </message>
    <message>
        <source>Physics engine of the scene. The panel is shown for engine 1 only.</source>
        <translation>Motor de física de la escena. El panel solo se muestra con el motor 1.</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Selected object</source>
        <translation>Objeto seleccionado</translation>
    </message>
    <message>
        <source>Soft cloth physics</source>
        <translation>Física de tela suave</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the object, as the host&apos;s own menus would</source>
        <translation>Activa o desactiva la física de tela suave del objeto, como lo harían los menús del anfitrión</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Type code. Shown types: 1 to 6, 30 to 34, 38, 39, 51 to 53. Types 5 and 6 can be converted.</source>
        <translation>Código de tipo. Tipos mostrados: 1 a 6, 30 a 34, 38, 39, 51 a 53. Los tipos 5 y 6 se pueden convertir.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Kind code. Kind 14 has no choice of rigid body or soft cloth.</source>
        <translation>Código de clase. La clase 14 no permite elegir entre cuerpo rígido y tela suave.</translation>
    </message>
    <message>
        <source>Convert state</source>
        <translation>Conversión</translation>
    </message>
    <message>
        <source>3 is at rest; another state of a type 5 or 6 object hides the panel in family A</source>
        <translation>3 es el reposo; otro estado de un objeto de tipo 5 o 6 oculta el panel en la familia A</translation>
    </message>
    <message>
        <source>Hides the panel for this object</source>
        <translation>Oculta el panel para este objeto</translation>
    </message>
    <message>
        <source>Blocked in family A</source>
        <translation>Bloqueado en la familia A</translation>
    </message>
    <message>
        <source>Blocked in family B</source>
        <translation>Bloqueado en la familia B</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modos</translation>
    </message>
    <message>
        <source>None (0)</source>
        <translation>Ninguno (0)</translation>
    </message>
    <message>
        <source>Weight map (25)</source>
        <translation>Mapa de pesos (25)</translation>
    </message>
    <message>
        <source>Another (7)</source>
        <translation>Otro (7)</translation>
    </message>
    <message>
        <source>Dialog mode</source>
        <translation>Modo de diálogo</translation>
    </message>
    <message>
        <source>Material (7)</source>
        <translation>Material (7)</translation>
    </message>
    <message>
        <source>Another (3)</source>
        <translation>Otro (3)</translation>
    </message>
    <message>
        <source>Pick mode</source>
        <translation>Modo de selección</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Events by hand</source>
        <translation>Eventos a mano</translation>
    </message>
    <message>
        <source>Topology (0x2)</source>
        <translation>Topología (0x2)</translation>
    </message>
    <message>
        <source>Replaced (0x4)</source>
        <translation>Reemplazado (0x4)</translation>
    </message>
    <message>
        <source>Material list (0x8)</source>
        <translation>Lista de materiales (0x8)</translation>
    </message>
    <message>
        <source>Removed (0x40)</source>
        <translation>Eliminado (0x40)</translation>
    </message>
    <message>
        <source>Material names (0x100)</source>
        <translation>Nombres de materiales (0x100)</translation>
    </message>
    <message>
        <source>Sends that the data of the selected objects have changed</source>
        <translation>Avisa de que han cambiado los datos de los objetos seleccionados</translation>
    </message>
    <message>
        <source>Data changed</source>
        <translation>Datos cambiados</translation>
    </message>
    <message>
        <source>Sends this event to the plug-in</source>
        <translation>Envía este evento al complemento</translation>
    </message>
    <message>
        <source>Hierarchy changed</source>
        <translation>Jerarquía cambiada</translation>
    </message>
    <message>
        <source>Undo or redo done</source>
        <translation>Deshecho o rehecho</translation>
    </message>
    <message>
        <source>About to convert</source>
        <translation>Antes de convertir</translation>
    </message>
    <message>
        <source>Several materials detected</source>
        <translation>Varios materiales detectados</translation>
    </message>
    <message>
        <source>Edited image saved</source>
        <translation>Imagen editada guardada</translation>
    </message>
    <message>
        <source>Failing calls</source>
        <translation>Llamadas que fallan</translation>
    </message>
    <message>
        <source>GetSoftClothCollision</source>
        <translation>GetSoftClothCollision</translation>
    </message>
    <message>
        <source>Host operation that is to fail, as the Host Calls view names it</source>
        <translation>Operación del anfitrión que debe fallar, con el nombre que le da la lista de llamadas</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Status that the failing call answers</source>
        <translation>Estado que devuelve la llamada que falla</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Let it fail</source>
        <translation>Hacer fallar</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>Reparar todo</translation>
    </message>
</context>
<context>
    <name>Host::ImageEditor</name>
    <message>
        <source>there is no folder for temporary files</source>
        <translation>no hay carpeta para archivos temporales</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; for the image editor could not be written: %2.</source>
        <translation>No se pudo escribir el archivo «%1» para el editor de imágenes: %2.</translation>
    </message>
</context>
<context>
    <name>Host::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Idioma del &amp;sistema</translation>
    </message>
</context>
<context>
    <name>Host::Legend</name>
    <message>
        <source>Held (black)</source>
        <translation>Sujeto (negro)</translation>
    </message>
    <message>
        <source>Free (white)</source>
        <translation>Libre (blanco)</translation>
    </message>
    <message>
        <source>No weight image</source>
        <translation>Sin imagen de pesos</translation>
    </message>
    <message>
        <source>Legend of the weights</source>
        <translation>Leyenda de los pesos</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>Scene</source>
        <translation>Escena</translation>
    </message>
    <message>
        <source>Host Controls</source>
        <translation>Controles del anfitrión</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <source>The page of the host&apos;s panels that the plug-in asked for last</source>
        <translation>La página de los paneles del anfitrión que el complemento pidió por última vez</translation>
    </message>
    <message>
        <source>Panel page %1, place %2, option %3</source>
        <translation>Página %1, lugar %2, opción %3</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
</context>
<context>
    <name>Host::MovingVertices</name>
    <message>
        <source>How many vertices of the chosen material the weight image lets move. More than %L1 are slow to simulate.</source>
        <translation>Cuántos vértices del material elegido deja mover la imagen de pesos. Con más de %L1 la simulación es lenta.</translation>
    </message>
    <message>
        <source>%1: %L2 of %L3 vertices move</source>
        <translation>%1: se mueven %L2 de %L3 vértices</translation>
    </message>
</context>
<context>
    <name>Host::PanelActions</name>
    <message>
        <source>&amp;Weight Map Dialog</source>
        <translation>&amp;Diálogo de mapa de pesos</translation>
    </message>
    <message>
        <source>Opens or closes the dialog that chooses the material and its weight image</source>
        <translation>Abre o cierra el diálogo que elige el material y su imagen de pesos</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>Tela suave</translation>
    </message>
</context>
<context>
    <name>Host::PickGuide</name>
    <message>
        <source>Click a material to pick it; Escape ends picking.</source>
        <translation>Haga clic en un material para elegirlo; Esc termina la elección.</translation>
    </message>
</context>
<context>
    <name>Host::RecentFiles</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
</context>
<context>
    <name>Host::SceneFiles</name>
    <message>
        <source>Soft cloth scenes (*.clothscene)</source>
        <translation>Escenas de tela suave (*.clothscene)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Arc&amp;hivo</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>&amp;Nueva escena</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>&amp;Abrir escena…</translation>
    </message>
    <message>
        <source>&amp;Import Model…</source>
        <translation>&amp;Importar modelo…</translation>
    </message>
    <message>
        <source>&amp;Recent Files</source>
        <translation>Archivos &amp;recientes</translation>
    </message>
    <message>
        <source>&amp;Save Scene</source>
        <translation>&amp;Guardar escena</translation>
    </message>
    <message>
        <source>Save Scene &amp;As…</source>
        <translation>Guardar escena &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import cancelled</source>
        <translation>Importación cancelada</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Import Model</source>
        <translation>Importar modelo</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>Modelos (*.%1)</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>Abrir escena</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Guardar escena</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The scene has changes that are not saved.</source>
        <translation>La escena tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
</context>
<context>
    <name>Host::SceneTree</name>
    <message>
        <source>Objects of the scene</source>
        <translation>Objetos de la escena</translation>
    </message>
</context>
<context>
    <name>Host::UnitDialog</name>
    <message>
        <source>Import Model</source>
        <translation>Importar modelo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say in which unit it was made.</source>
        <translation>«%1» no indica en qué unidad se hizo.</translation>
    </message>
    <message>
        <source>&amp;Unit of the file</source>
        <translation>&amp;Unidad del archivo</translation>
    </message>
    <message>
        <source>Largest side</source>
        <translation>Lado mayor</translation>
    </message>
    <message>
        <source>%1 cm in the scene</source>
        <translation>%1 cm en la escena</translation>
    </message>
</context>
<context>
    <name>Host::ViewActions</name>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>&amp;Encuadrar la selección</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>Encuadrar &amp;todo</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>&amp;Frontal</translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation>&amp;Lateral</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Superior</translation>
    </message>
    <message>
        <source>Shows the weight images on the model: what is held and what moves freely</source>
        <translation>Muestra las imágenes de pesos sobre el modelo: lo que queda sujeto y lo que se mueve libremente</translation>
    </message>
    <message>
        <source>Show Wei&amp;ghts</source>
        <translation>Mostrar los &amp;pesos</translation>
    </message>
</context>
<context>
    <name>Host::ViewTexts</name>
    <message>
        <source>Grid: %1 cm</source>
        <translation>Cuadrícula: %1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewedScene</name>
    <message>
        <source>Triangles that cannot be shown, because a corner is nowhere: %L1</source>
        <translation>Triángulos que no se pueden mostrar porque un vértice no está en ningún sitio: %L1</translation>
    </message>
    <message>
        <source>Textures that cannot be read: %1</source>
        <translation>Texturas que no se pueden leer: %1</translation>
    </message>
</context>
<context>
    <name>Host::ViewportWidget</name>
    <message>
        <source>View of the model</source>
        <translation>Vista del modelo</translation>
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
        <translation>no es una imagen JPEG, BMP, GIF, PNG ni TGA</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 on a side are too many</source>
        <translation>tiene %1 x %2 píxeles, y más de %3 por lado son demasiados</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 in all are too many</source>
        <translation>tiene %1 x %2 píxeles, y más de %3 en total son demasiados</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>está truncada</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañada</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacía</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay suficiente memoria</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2.</source>
        <translation>No se pudo leer la imagen «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>ModelText</name>
    <message>
        <source>The model file &quot;%1&quot; could not be read: %2</source>
        <translation>No se pudo leer el archivo de modelo «%1»: %2</translation>
    </message>
    <message>
        <source>The model in &quot;%1&quot; is too large: %2.</source>
        <translation>El modelo de «%1» es demasiado grande: %2.</translation>
    </message>
    <message>
        <source>There is no model file &quot;%1&quot;.</source>
        <translation>No existe el archivo de modelo «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is empty.</source>
        <translation>El archivo de modelo «%1» está vacío.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is too large.</source>
        <translation>El archivo de modelo «%1» es demasiado grande.</translation>
    </message>
    <message>
        <source>it is damaged.</source>
        <translation>está dañado.</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; holds no surfaces.</source>
        <translation>El archivo de modelo «%1» no contiene superficies.</translation>
    </message>
</context>
<context>
    <name>PanelHint</name>
    <message>
        <source>The scene is empty. Import a model with File &gt; Import Model, or drop its file on this window.</source>
        <translation>La escena está vacía. Importe un modelo con Archivo &gt; Importar modelo o arrastre su archivo a esta ventana.</translation>
    </message>
    <message>
        <source>Click an object in the scene to edit its soft cloth.</source>
        <translation>Haga clic en un objeto de la escena para editar su tela suave.</translation>
    </message>
    <message>
        <source>Several objects are selected. Select one alone to edit its soft cloth.</source>
        <translation>Hay varios objetos seleccionados. Seleccione uno solo para editar su tela suave.</translation>
    </message>
    <message>
        <source>Soft cloth needs physics engine 1: see Host Controls.</source>
        <translation>La tela suave necesita el motor de física 1: véase Controles del anfitrión.</translation>
    </message>
    <message>
        <source>There is no soft cloth for this object. Its type, its kind or a block may keep it out: see Host Controls.</source>
        <translation>Este objeto no admite tela suave. Su tipo, su clase o un bloqueo puede impedirlo: véase Controles del anfitrión.</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>%1 is not a plug-in for this host.</source>
        <translation>%1 no es un complemento para este anfitrión.</translation>
    </message>
    <message>
        <source>%1 does not work in this host.</source>
        <translation>%1 no funciona en este anfitrión.</translation>
    </message>
    <message>
        <source>%1 did not start (0x%2).</source>
        <translation>%1 no se inició (0x%2).</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for this host: %2</source>
        <translation>%1 no es un complemento para este anfitrión: %2</translation>
    </message>
    <message>
        <source>There is no resource file &quot;%1&quot;.</source>
        <translation>No hay archivo de recursos «%1».</translation>
    </message>
</context>
<context>
    <name>PreviewText</name>
    <message>
        <source>The preview stopped because the cloth got out of control. Reset starts it again.</source>
        <translation>La vista previa se detuvo porque la tela quedó fuera de control. Restablecer la inicia de nuevo.</translation>
    </message>
</context>
<context>
    <name>Scene</name>
    <message>
        <source>Several values</source>
        <translation>Varios valores</translation>
    </message>
</context>
<context>
    <name>SceneText</name>
    <message>
        <source>is named a second time</source>
        <translation>se nombra por segunda vez</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>is both linked and embedded</source>
        <translation>está a la vez vinculado e incrustado</translation>
    </message>
    <message>
        <source>is damaged: its check sum does not fit</source>
        <translation>está dañado: la suma de comprobación no coincide</translation>
    </message>
    <message>
        <source>does not hold as many items as it says</source>
        <translation>no contiene tantos elementos como indica</translation>
    </message>
    <message>
        <source>cannot be unpacked</source>
        <translation>no se puede descomprimir</translation>
    </message>
    <message>
        <source>its values are nested more than %1 levels deep</source>
        <translation>sus valores están anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>it has more than %1 values</source>
        <translation>hay más de %1 valores</translation>
    </message>
    <message>
        <source>must be a group of values</source>
        <translation>debe ser un grupo de valores</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>must be a list</source>
        <translation>debe ser una lista</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>debe ser verdadero (true) o falso (false)</translation>
    </message>
    <message>
        <source>must be text</source>
        <translation>debe ser un texto</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>debe ser un número</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>debe ser un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>is not valid base64</source>
        <translation>no es base64 válido</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>el documento</translation>
    </message>
    <message>
        <source>The scene could not be saved as &quot;%1&quot;: %2.</source>
        <translation>No se pudo guardar la escena como «%1»: %2.</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; could not be loaded: %2.</source>
        <translation>No se pudo cargar el archivo de escena «%1»: %2.</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>falta el nombre</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>la escena es demasiado grande</translation>
    </message>
    <message>
        <source>There is no scene file &quot;%1&quot;.</source>
        <translation>No existe el archivo de escena «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; is empty.</source>
        <translation>El archivo de escena «%1» está vacío.</translation>
    </message>
    <message>
        <source>it is damaged or no scene file at all (%1 at byte %2)</source>
        <translation>está dañado o no es un archivo de escena (%1 en el byte %2)</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay suficiente memoria</translation>
    </message>
    <message>
        <source>must be a list of 4 numbers</source>
        <translation>debe ser una lista de 4 números</translation>
    </message>
    <message>
        <source>is %1, which is in use already</source>
        <translation>es %1, que ya está en uso</translation>
    </message>
    <message>
        <source>has a texture already</source>
        <translation>ya tiene una textura</translation>
    </message>
    <message>
        <source>must hold three indices per triangle</source>
        <translation>debe contener tres índices por triángulo</translation>
    </message>
    <message>
        <source>names a vertex that the mesh does not have</source>
        <translation>nombra un vértice que la malla no tiene</translation>
    </message>
    <message>
        <source>names a material that the object does not have</source>
        <translation>nombra un material que el objeto no tiene</translation>
    </message>
    <message>
        <source>must hold one item per vertex or none</source>
        <translation>debe contener un elemento por vértice o ninguno</translation>
    </message>
    <message>
        <source>has a slot on this mesh already</source>
        <translation>ya tiene un lugar en esta malla</translation>
    </message>
    <message>
        <source>is no object of the scene</source>
        <translation>no es un objeto de la escena</translation>
    </message>
    <message>
        <source>changes something that the scene does not have</source>
        <translation>cambia algo que la escena no tiene</translation>
    </message>
    <message>
        <source>it is no scene of this application</source>
        <translation>no es una escena de esta aplicación</translation>
    </message>
    <message>
        <source>it was written by a newer version of this application</source>
        <translation>lo escribió una versión más reciente de esta aplicación</translation>
    </message>
    <message>
        <source>it has %1 meshes, and more than %2 are too many</source>
        <translation>hay %1 mallas, y más de %2 son demasiadas</translation>
    </message>
    <message>
        <source>it has %1 materials, and more than %2 are too many</source>
        <translation>hay %1 materiales, y más de %2 son demasiados</translation>
    </message>
    <message>
        <source>it has %1 vertices, and more than %2 are too many</source>
        <translation>hay %1 vértices, y más de %2 son demasiados</translation>
    </message>
    <message>
        <source>it has %1 triangles, and more than %2 are too many</source>
        <translation>hay %1 triángulos, y más de %2 son demasiados</translation>
    </message>
    <message>
        <source>must be a whole number in quotation marks</source>
        <translation>debe ser un número entero entre comillas</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>está fuera del intervalo</translation>
    </message>
    <message>
        <source>must be a list of %1 numbers</source>
        <translation>debe ser una lista de %1 números</translation>
    </message>
    <message>
        <source>must be %1 bytes</source>
        <translation>debe tener %1 bytes</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>Millimetre</source>
        <translation>Milímetro</translation>
    </message>
    <message>
        <source>Centimetre</source>
        <translation>Centímetro</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Pulgada</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pie</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>Metro</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A stand-in host for the soft cloth physics panel.</source>
        <translation>Un anfitrión sustituto para el panel de física de tela suave.</translation>
    </message>
    <message>
        <source>Model or scene file; the demo character without.</source>
        <translation>Archivo de modelo o de escena; sin él, el personaje de demostración.</translation>
    </message>
    <message>
        <source>Application family: a, b or none.</source>
        <translation>Familia de aplicación: a, b o none.</translation>
    </message>
    <message>
        <source>The plug-in library to load.</source>
        <translation>La biblioteca del complemento que se carga.</translation>
    </message>
    <message>
        <source>Run the main job unattended and write pictures into this folder.</source>
        <translation>Ejecutar la tarea principal sin intervención y escribir imágenes en esta carpeta.</translation>
    </message>
    <message>
        <source>Program, with its options, that opens images in place of the one chosen.</source>
        <translation>Programa, con sus opciones, que abre las imágenes en lugar del elegido.</translation>
    </message>
    <message>
        <source>Language in place of the one chosen, for example de or zh_TW.</source>
        <translation>Idioma en lugar del elegido, por ejemplo de o zh_TW.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;, but these: %2.</source>
        <translation>No hay ningún idioma «%1», sino estos: %2.</translation>
    </message>
    <message>
        <source>There is no application family &quot;%1&quot;, but these: a, b, none.</source>
        <translation>No hay familia de aplicaciones «%1», pero sí estas: a, b, none.</translation>
    </message>
    <message>
        <source>Only one model can be opened; &quot;%1&quot; is one too many.</source>
        <translation>Solo se puede abrir un modelo; «%1» sobra.</translation>
    </message>
    <message>
        <source>Unit of a model whose file does not name one, in place of asking: %1.</source>
        <translation>Unidad de un modelo cuyo archivo no indica ninguna, en lugar de preguntar: %1.</translation>
    </message>
    <message>
        <source>There is no unit &quot;%1&quot;, but these: %2.</source>
        <translation>No existe la unidad «%1», sino estas: %2.</translation>
    </message>
</context>
</TS>
