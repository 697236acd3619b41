<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>LensFlare section hot key</name>
    <message>
        <source>[Hot Key] Physics</source>
        <translation>[Tecla de acceso] Física</translation>
    </message>
</context>
<context>
    <name>MV::CEditedMaterial</name>
    <message>
        <source>There is no material to edit</source>
        <translation>No hay ningún material que editar</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothMaterialDlg</name>
    <message>
        <source>InValid File Path.</source>
        <translation>La ruta del archivo no es válida.</translation>
    </message>
    <message>
        <source>File is Unreadable.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. </source>
        <translation>La malla de tela generada supera el límite máximo de 20 000 vértices. Pruebe con otra imagen válida. </translation>
    </message>
    <message>
        <source>This image would create a soft cloth without any physics effect,
 because all the vertices of cloth mesh were set as zero weighting
( black color ). Please modify the gray map or load other valid images.</source>
        <translation>Esta imagen crearía una tela suave sin ningún efecto físico,
 porque todos los vértices de la malla tendrían peso cero
(color negro). Modifique la imagen de grises o cargue otras imágenes válidas.</translation>
    </message>
    <message>
        <source>Failed to save weight image.</source>
        <translation>No se pudo guardar la imagen de pesos.</translation>
    </message>
    <message>
        <source>Failed to launch image editor.</source>
        <translation>No se pudo abrir el editor de imágenes.</translation>
    </message>
    <message>
        <source>Diffuse Uv Texture does not exist.</source>
        <translation>La textura UV difusa no existe.</translation>
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
        <translation>Malla</translation>
    </message>
    <message>
        <source>Material Name</source>
        <comment>MVPhysicsSoftClothSection Material Table �ĤT���W��</comment>
        <translation>Nombre del material</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothPresetSection</name>
    <message>
        <source>File is Unreadable.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>InValid File Path.</source>
        <translation>La ruta del archivo no es válida.</translation>
    </message>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>Cargar un perfil propio de tela suave</translation>
    </message>
    <message>
        <source>INI Files (*.ini)</source>
        <translation>Archivos INI (*.ini)</translation>
    </message>
    <message>
        <source>Save Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>Guardar un perfil propio de tela suave</translation>
    </message>
    <message>
        <source>File is Unwritable.</source>
        <translation>No se puede escribir en el archivo.</translation>
    </message>
    <message>
        <source>Load Soft Ini Profile</source>
        <comment>Open File title</comment>
        <translation>Cargar un perfil INI de tela suave</translation>
    </message>
    <message>
        <source>[Hot Key] Modify</source>
        <comment>Modify Panel hot key</comment>
        <translation>[Tecla de acceso] Modificar</translation>
    </message>
    <message>
        <source>[Hot Key] Physics</source>
        <comment>LensFlare section hot key</comment>
        <translation>[Tecla de acceso] Física</translation>
    </message>
    <message>
        <source>This object does not have any valid material enabling to create soft cloth.</source>
        <translation>Este objeto no tiene ningún material válido con el que crear tela suave.</translation>
    </message>
    <message>
        <source>This object has multiple materials.
 Please select a material and load a gray map image.</source>
        <translation>Este objeto tiene varios materiales.
 Seleccione un material y cargue una imagen de grises.</translation>
    </message>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <comment>Message Title</comment>
        <translation>[Física de tela suave] Movira 6</translation>
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
        <translation>a %1</translation>
    </message>
</context>
<context>
    <name>Message Title</name>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <translation>[Física de tela suave] Movira 6</translation>
    </message>
</context>
<context>
    <name>Modify Panel hot key</name>
    <message>
        <source>[Hot Key] Modify</source>
        <translation>[Tecla de acceso] Modificar</translation>
    </message>
</context>
<context>
    <name>Open File title</name>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <translation>Cargar un perfil propio de tela suave</translation>
    </message>
</context>
<context>
    <name>SoftClothCollision</name>
    <message>
        <source>Fold or unfold the collision settings</source>
        <translation>Plegar o desplegar los ajustes de colisión</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>Colisión</translation>
    </message>
    <message>
        <source>The cloth is stopped by rigid bodies instead of passing through them</source>
        <translation>Los cuerpos rígidos detienen la tela en lugar de que los atraviese</translation>
    </message>
    <message>
        <source>Soft vs. Rigid Collision</source>
        <translation>Colisión de tela y rígido</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units</source>
        <translation>Distancia que la tela guarda con los cuerpos rígidos, en unidades de la escena</translation>
    </message>
    <message>
        <source>&amp;Collision Margin</source>
        <translation>Mar&amp;gen de colisión</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units. A larger margin keeps fast cloth from slipping through.</source>
        <translation>Distancia que la tela guarda con los cuerpos rígidos, en unidades de la escena. Un margen mayor impide que la tela rápida los atraviese.</translation>
    </message>
    <message>
        <source>Rigid collision margin</source>
        <translation>Margen de colisión rígida</translation>
    </message>
    <message>
        <source>Folds of the cloth push each other apart instead of passing through; costs simulation time</source>
        <translation>Los pliegues de la tela se empujan entre sí en lugar de atravesarse; cuesta tiempo de cálculo</translation>
    </message>
    <message>
        <source>Self Collision</source>
        <translation>Autocolisión</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units</source>
        <translation>Distancia que los pliegues de la tela guardan entre sí, en unidades de la escena</translation>
    </message>
    <message>
        <source>Self Collisio&amp;n Margin</source>
        <translation>Margen de autoco&amp;lisión</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units. Too large a margin makes the cloth look thick.</source>
        <translation>Distancia que los pliegues de la tela guardan entre sí, en unidades de la escena. Un margen demasiado grande hace que la tela parezca gruesa.</translation>
    </message>
    <message>
        <source>Self collision margin</source>
        <translation>Margen de autocolisión</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialDlg</name>
    <message>
        <source>Soft Cloth Weight Map</source>
        <translation>Mapa de pesos de la tela suave</translation>
    </message>
    <message>
        <source>&amp;Materials</source>
        <translation>&amp;Materiales</translation>
    </message>
    <message>
        <source>Materials of the object that take part in the soft cloth. The chosen one is edited here and in the panel.</source>
        <translation>Materiales del objeto que participan en la tela suave. El elegido se edita aquí y en el panel.</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiales</translation>
    </message>
    <message>
        <source>Choose a material by clicking it in the viewport; Escape ends picking</source>
        <translation>Elegir un material haciendo clic en él en la vista; Escape termina la selección</translation>
    </message>
    <message>
        <source>&amp;Pick Material</source>
        <translation>Ele&amp;gir material</translation>
    </message>
    <message>
        <source>Decide in a table which materials take part in the soft cloth</source>
        <translation>Decidir en una tabla qué materiales participan en la tela suave</translation>
    </message>
    <message>
        <source>Material &amp;Table...</source>
        <translation>&amp;Tabla de materiales...</translation>
    </message>
    <message>
        <source>Weight Image</source>
        <translation>Imagen de pesos</translation>
    </message>
    <message>
        <source>Diffuse texture of the material</source>
        <translation>Textura difusa del material</translation>
    </message>
    <message>
        <source>Diffuse texture</source>
        <translation>Textura difusa</translation>
    </message>
    <message>
        <source>&amp;Diffuse</source>
        <translation>&amp;Difusa</translation>
    </message>
    <message>
        <source>Opacity texture of the material</source>
        <translation>Textura de opacidad del material</translation>
    </message>
    <message>
        <source>Opacity texture</source>
        <translation>Textura de opacidad</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>&amp;Opacidad</translation>
    </message>
    <message>
        <source>Weight image of the material: black holds the vertices, lighter grays let them move. Drop an image file here, or double-click to choose one.</source>
        <translation>Imagen de pesos del material: el negro sujeta los vértices, los grises más claros los dejan moverse. Suelte aquí un archivo de imagen o haga doble clic para elegir uno.</translation>
    </message>
    <message>
        <source>Weight image</source>
        <translation>Imagen de pesos</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>Pe&amp;sos</translation>
    </message>
    <message>
        <source>The chosen texture, enlarged</source>
        <translation>La textura elegida, ampliada</translation>
    </message>
    <message>
        <source>Preview of the chosen texture</source>
        <translation>Vista previa de la textura elegida</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Arc&amp;hivo</translation>
    </message>
    <message>
        <source>File that the weight image is linked to</source>
        <translation>Archivo al que está vinculada la imagen de pesos</translation>
    </message>
    <message>
        <source>File of the weight image</source>
        <translation>Archivo de la imagen de pesos</translation>
    </message>
    <message>
        <source>No linked file</source>
        <translation>Sin archivo vinculado</translation>
    </message>
    <message>
        <source>Show the folder of the weight image&apos;s file</source>
        <translation>Mostrar la carpeta del archivo de la imagen de pesos</translation>
    </message>
    <message>
        <source>Open Folde&amp;r</source>
        <translation>Abrir car&amp;peta</translation>
    </message>
    <message>
        <source>Load an image file as the weight image</source>
        <translation>Cargar un archivo de imagen como imagen de pesos</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>Carg&amp;ar...</translation>
    </message>
    <message>
        <source>Save the weight image to a file</source>
        <translation>Guardar la imagen de pesos en un archivo</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>Guarda&amp;r...</translation>
    </message>
    <message>
        <source>Take the weight image away from the material</source>
        <translation>Quitar la imagen de pesos del material</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Keep the weight image inside the material instead of linking its file</source>
        <translation>Guardar la imagen de pesos dentro del material en lugar de vincular su archivo</translation>
    </message>
    <message>
        <source>&amp;Embed</source>
        <translation>&amp;Incrustar</translation>
    </message>
    <message>
        <source>Edit the chosen texture in the external image editor</source>
        <translation>Editar la textura elegida en el editor de imágenes externo</translation>
    </message>
    <message>
        <source>Ed&amp;it</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Open the UV layout over the diffuse texture in the external image editor</source>
        <translation>Abrir el despliegue UV sobre la textura difusa en el editor de imágenes externo</translation>
    </message>
    <message>
        <source>&amp;UV Layout</source>
        <translation>Despliegue &amp;UV</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>&amp;Brillo</translation>
    </message>
    <message>
        <source>Brightness of the weight image, -100 to 100</source>
        <translation>Brillo de la imagen de pesos, de -100 a 100</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>&amp;Contraste</translation>
    </message>
    <message>
        <source>Contrast of the weight image, -100 to 100</source>
        <translation>Contraste de la imagen de pesos, de -100 a 100</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Stop Picking</source>
        <translation>Terminar la selección</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialTable</name>
    <message>
        <source>Material Table</source>
        <translation>Tabla de materiales</translation>
    </message>
    <message>
        <source>&amp;Materials that take part in the soft cloth:</source>
        <translation>&amp;Materiales que participan en la tela suave:</translation>
    </message>
    <message>
        <source>Ticked materials take part in the soft cloth</source>
        <translation>Los materiales marcados participan en la tela suave</translation>
    </message>
    <message>
        <source>Materials of the object</source>
        <translation>Materiales del objeto</translation>
    </message>
    <message>
        <source>Apply the ticks to the materials</source>
        <translation>Aplicar las marcas a los materiales</translation>
    </message>
    <message>
        <source>C&amp;onfirm</source>
        <translation>C&amp;onfirmar</translation>
    </message>
    <message>
        <source>Leave the materials as they are</source>
        <translation>Dejar los materiales como están</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>SoftClothPreset</name>
    <message>
        <source>Fold or unfold the presets</source>
        <translation>Plegar o desplegar los preajustes</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the selected object on or off</source>
        <translation>Activa o desactiva la física de tela suave del objeto seleccionado</translation>
    </message>
    <message>
        <source>Activate Ph&amp;ysics</source>
        <translation>Activar fí&amp;sica</translation>
    </message>
    <message>
        <source>Turns the selected object into a rigid body</source>
        <translation>Convierte el objeto seleccionado en un cuerpo rígido</translation>
    </message>
    <message>
        <source>Rigid Body</source>
        <translation>Cuerpo rígido</translation>
    </message>
    <message>
        <source>The selected object is soft cloth</source>
        <translation>El objeto seleccionado es tela suave</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>Tela suave</translation>
    </message>
    <message>
        <source>The cloth falls as the scene&apos;s gravity pulls; otherwise it does not fall</source>
        <translation>La tela cae según la gravedad de la escena; si no, no cae</translation>
    </message>
    <message>
        <source>Use &amp;World Gravity</source>
        <translation>Usar gravedad del m&amp;undo</translation>
    </message>
    <message>
        <source>Edits go to all materials of the object instead of the selected one only</source>
        <translation>Los cambios afectan a todos los materiales del objeto en lugar de solo al seleccionado</translation>
    </message>
    <message>
        <source>Affect A&amp;ll Materials</source>
        <translation>Afectar a &amp;todos los materiales</translation>
    </message>
    <message>
        <source>A gray-scale image that says which parts follow the simulation: black stays, white moves</source>
        <translation>Una imagen de grises que dice qué partes siguen la simulación: el negro se queda, el blanco se mueve</translation>
    </message>
    <message>
        <source>Weight &amp;Map</source>
        <translation>Ma&amp;pa de pesos</translation>
    </message>
    <message>
        <source>Opens or closes the weight maps of the object&apos;s materials</source>
        <translation>Abre o cierra los mapas de pesos de los materiales del objeto</translation>
    </message>
    <message>
        <source>Paint Weights…</source>
        <translation>Pintar pesos…</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Double-click a preset or press Return to apply its values to the selected material</source>
        <translation>Haga doble clic en un preajuste o pulse Intro para aplicar sus valores al material seleccionado</translation>
    </message>
    <message>
        <source>Cloth presets</source>
        <translation>Preajustes de tela</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Algodón</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>Denim</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>Cuero</translation>
    </message>
    <message>
        <source>Silk</source>
        <translation>Seda</translation>
    </message>
    <message>
        <source>Rubber</source>
        <translation>Goma</translation>
    </message>
    <message>
        <source>Wool</source>
        <translation>Lana</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lino</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Terciopelo</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>Pelo</translation>
    </message>
    <message>
        <source>Hair presets</source>
        <translation>Preajustes de pelo</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Corto</translation>
    </message>
    <message>
        <source>Bob</source>
        <translation>Bob</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Largo</translation>
    </message>
    <message>
        <source>Curly</source>
        <translation>Rizado</translation>
    </message>
    <message>
        <source>Ponytail</source>
        <translation>Coleta</translation>
    </message>
    <message>
        <source>Braid</source>
        <translation>Trenza</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Viento</translation>
    </message>
    <message>
        <source>Wind presets</source>
        <translation>Preajustes de viento</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Calma</translation>
    </message>
    <message>
        <source>Breeze</source>
        <translation>Brisa</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>Vendaval</translation>
    </message>
    <message>
        <source>Gusts</source>
        <translation>Ráfagas</translation>
    </message>
    <message>
        <source>Whirl</source>
        <translation>Remolino</translation>
    </message>
    <message>
        <source>Applies the values of a custom profile</source>
        <translation>Aplica los valores de un perfil propio</translation>
    </message>
    <message>
        <source>Load Profile…</source>
        <translation>Cargar perfil…</translation>
    </message>
    <message>
        <source>Saves the values that the panel shows as a custom profile</source>
        <translation>Guarda los valores que muestra el panel como perfil propio</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>Guardar perfil…</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>Constante</translation>
    </message>
</context>
<context>
    <name>SoftClothProperty</name>
    <message>
        <source>Fold or unfold the property settings</source>
        <translation>Plegar o desplegar las propiedades</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms</source>
        <translation>Masa de la tela, en kilogramos</translation>
    </message>
    <message>
        <source>M&amp;ass</source>
        <translation>&amp;Masa</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms. How hard it is to push the cloth around.</source>
        <translation>Masa de la tela, en kilogramos. Cuánto cuesta empujar la tela.</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source> kg</source>
        <translation> kg</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz</source>
        <translation>Cuántas veces por segundo se calcula la tela, en hercios</translation>
    </message>
    <message>
        <source>Solver Fre&amp;quency</source>
        <translation>Fre&amp;cuencia del solver</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz. More makes it steadier and stiffer, and costs simulation time.</source>
        <translation>Cuántas veces por segundo se calcula la tela, en hercios. Más la hace más estable y rígida, y cuesta tiempo de cálculo.</translation>
    </message>
    <message>
        <source>Solver Frequency</source>
        <translation>Frecuencia del solver</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1</source>
        <translation>Cuánto se adhiere la tela a lo que toca, de 0 a 1</translation>
    </message>
    <message>
        <source>F&amp;riction</source>
        <translation>Fricció&amp;n</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1. 0 slides freely, 1 hardly slides at all.</source>
        <translation>Cuánto se adhiere la tela a lo que toca, de 0 a 1. Con 0 desliza libremente, con 1 apenas desliza.</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Fricción</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1</source>
        <translation>Con qué rapidez se apaga el movimiento de la tela, de 0 a 1</translation>
    </message>
    <message>
        <source>&amp;Damping</source>
        <translation>Am&amp;ortiguación</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1. 0 lets it swing on, 1 calms it at once.</source>
        <translation>Con qué rapidez se apaga el movimiento de la tela, de 0 a 1. Con 0 sigue oscilando, con 1 se calma enseguida.</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>Amortiguación</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1</source>
        <translation>Cuánto frena el aire la tela, de 0 a 1</translation>
    </message>
    <message>
        <source>Dra&amp;g</source>
        <translation>A&amp;rrastre</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1. 0 cuts through the air, 1 is carried along with it.</source>
        <translation>Cuánto frena el aire la tela, de 0 a 1. Con 0 corta el aire, con 1 el aire se la lleva.</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Arrastre</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest</source>
        <translation>Cuánto puede alejarse la tela de donde está sujeta, como múltiplo de su longitud en reposo</translation>
    </message>
    <message>
        <source>Tet&amp;her Limit</source>
        <translation>Límite &amp;de anclaje</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest. At 1 it never gets longer than it was modelled.</source>
        <translation>Cuánto puede alejarse la tela de donde está sujeta, como múltiplo de su longitud en reposo. Con 1 nunca es más larga de como se modeló.</translation>
    </message>
    <message>
        <source>Tether Limit</source>
        <translation>Límite de anclaje</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101</source>
        <translation>Con qué rigor se cumple el límite de anclaje, de 1 a 101</translation>
    </message>
    <message>
        <source>&amp;Tether Stiffness</source>
        <translation>Rigidez de ancla&amp;je</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101. 1 is the strictest, 101 lets the cloth pass the limit.</source>
        <translation>Con qué rigor se cumple el límite de anclaje, de 1 a 101. 1 es lo más riguroso, 101 deja que la tela pase el límite.</translation>
    </message>
    <message>
        <source>Tether Stiffness</source>
        <translation>Rigidez de anclaje</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent</source>
        <translation>Cuánta rigidez al estiramiento se quita, en porcentaje</translation>
    </message>
    <message>
        <source>&amp;Stiffness</source>
        <translation>Rigide&amp;z</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent. At 0 % the cloth keeps its size, at 100 % it stretches freely; below 0 % it is stiffer still.</source>
        <translation>Cuánta rigidez al estiramiento se quita, en porcentaje. Con 0 % la tela conserva su tamaño, con 100 % se estira libremente; por debajo de 0 % es aún más rígida.</translation>
    </message>
    <message>
        <source>Stiffness</source>
        <translation>Rigidez</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent</source>
        <translation>Cuánta rigidez a la flexión se quita, en porcentaje</translation>
    </message>
    <message>
        <source>&amp;Bending</source>
        <translation>Fle&amp;xión</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent. At 0 % the cloth hardly folds, at 100 % it folds freely; below 0 % it is stiffer still.</source>
        <translation>Cuánta rigidez a la flexión se quita, en porcentaje. Con 0 % la tela apenas se dobla, con 100 % se dobla libremente; por debajo de 0 % es aún más rígida.</translation>
    </message>
    <message>
        <source>Bending</source>
        <translation>Flexión</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths</source>
        <translation>Cuánto del movimiento de su objeto llega a la tela, en décimas</translation>
    </message>
    <message>
        <source>&amp;Inertia Scale</source>
        <translation>Escala de &amp;inercia</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths. At 0 nothing reaches it, at 10 all, at 20 twice as much; applies to straight movement, turning and centrifugal force alike.</source>
        <translation>Cuánto del movimiento de su objeto llega a la tela, en décimas. Con 0 no llega nada, con 10 todo, con 20 el doble; vale para el movimiento recto, el giro y la fuerza centrífuga.</translation>
    </message>
    <message>
        <source>Inertia Scale</source>
        <translation>Escala de inercia</translation>
    </message>
</context>
<context>
    <name>SoftClothWindSetting</name>
    <message>
        <source>Fold or unfold the wind settings</source>
        <translation>Plegar o desplegar los ajustes de viento</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Viento</translation>
    </message>
    <message>
        <source>Steady push of the wind along each axis, in scene units per second squared</source>
        <translation>Empuje constante del viento a lo largo de cada eje, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>External Acceleration</source>
        <translation>Aceleración externa</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared</source>
        <translation>Empuje constante del viento a lo largo de X, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Empuje constante del viento a lo largo de X, en unidades de la escena por segundo al cuadrado. Un número negativo sopla en sentido contrario.</translation>
    </message>
    <message>
        <source>External acceleration X</source>
        <translation>Aceleración externa X</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared</source>
        <translation>Empuje constante del viento a lo largo de Y, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Empuje constante del viento a lo largo de Y, en unidades de la escena por segundo al cuadrado. Un número negativo sopla en sentido contrario.</translation>
    </message>
    <message>
        <source>External acceleration Y</source>
        <translation>Aceleración externa Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared</source>
        <translation>Empuje constante del viento a lo largo de Z, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Empuje constante del viento a lo largo de Z, en unidades de la escena por segundo al cuadrado. Un número negativo sopla en sentido contrario.</translation>
    </message>
    <message>
        <source>External acceleration Z</source>
        <translation>Aceleración externa Z</translation>
    </message>
    <message>
        <source>Largest random push of the wind along each axis, in scene units per second squared</source>
        <translation>Mayor empuje aleatorio del viento a lo largo de cada eje, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>Random Acceleration</source>
        <translation>Aceleración aleatoria</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared</source>
        <translation>Mayor empuje aleatorio del viento a lo largo de X, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Mayor empuje aleatorio del viento a lo largo de X, en unidades de la escena por segundo al cuadrado. Va y viene con la frecuencia del viento.</translation>
    </message>
    <message>
        <source>Random acceleration X</source>
        <translation>Aceleración aleatoria X</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared</source>
        <translation>Mayor empuje aleatorio del viento a lo largo de Y, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Mayor empuje aleatorio del viento a lo largo de Y, en unidades de la escena por segundo al cuadrado. Va y viene con la frecuencia del viento.</translation>
    </message>
    <message>
        <source>Random acceleration Y</source>
        <translation>Aceleración aleatoria Y</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared</source>
        <translation>Mayor empuje aleatorio del viento a lo largo de Z, en unidades de la escena por segundo al cuadrado</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Mayor empuje aleatorio del viento a lo largo de Z, en unidades de la escena por segundo al cuadrado. Va y viene con la frecuencia del viento.</translation>
    </message>
    <message>
        <source>Random acceleration Z</source>
        <translation>Aceleración aleatoria Z</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz</source>
        <translation>Cada cuánto cambia el empuje aleatorio, en hercios</translation>
    </message>
    <message>
        <source>Wind Freq&amp;uency</source>
        <translation>&amp;Frecuencia del viento</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz. 0 keeps it as it is.</source>
        <translation>Cada cuánto cambia el empuje aleatorio, en hercios. Con 0 se queda como está.</translation>
    </message>
    <message>
        <source>Wind Frequency</source>
        <translation>Frecuencia del viento</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles</source>
        <translation>Cuánto varía el empuje aleatorio: se multiplica por un número aleatorio entre los dos tiradores</translation>
    </message>
    <message>
        <source>Rand&amp;om Factor</source>
        <translation>Factor &amp;aleatorio</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles. Drag a handle or use the arrow keys to move it; the handles keep their order.</source>
        <translation>Cuánto varía el empuje aleatorio: se multiplica por un número aleatorio entre los dos tiradores. Arrastre un tirador o use las teclas de flecha para moverlo; los tiradores conservan su orden.</translation>
    </message>
    <message>
        <source>Random Factor</source>
        <translation>Factor aleatorio</translation>
    </message>
    <message>
        <source>Smallest factor</source>
        <translation>Factor mínimo</translation>
    </message>
    <message>
        <source>from 0</source>
        <translation>de 0</translation>
    </message>
    <message>
        <source>Largest factor</source>
        <translation>Factor máximo</translation>
    </message>
    <message>
        <source>to 10</source>
        <translation>a 10</translation>
    </message>
</context>
</TS>
