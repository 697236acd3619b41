<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>LensFlare section hot key</name>
    <message>
        <source>[Hot Key] Physics</source>
        <translation>[热键] 物理</translation>
    </message>
</context>
<context>
    <name>MV::CEditedMaterial</name>
    <message>
        <source>There is no material to edit</source>
        <translation>没有可编辑的材质</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothMaterialDlg</name>
    <message>
        <source>InValid File Path.</source>
        <translation>文件路径无效。</translation>
    </message>
    <message>
        <source>File is Unreadable.</source>
        <translation>无法读取文件。</translation>
    </message>
    <message>
        <source>The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. </source>
        <translation>生成的布料网格超过了 20,000 个顶点的上限。请尝试其他有效的图像。 </translation>
    </message>
    <message>
        <source>This image would create a soft cloth without any physics effect,
 because all the vertices of cloth mesh were set as zero weighting
( black color ). Please modify the gray map or load other valid images.</source>
        <translation>此图像生成的柔性布料不会有任何物理效果，
 因为布料网格的所有顶点权重都为零
(黑色)。请修改灰度图，或加载其他有效的图像。</translation>
    </message>
    <message>
        <source>Failed to save weight image.</source>
        <translation>无法保存权重图像。</translation>
    </message>
    <message>
        <source>Failed to launch image editor.</source>
        <translation>无法启动图像编辑器。</translation>
    </message>
    <message>
        <source>Diffuse Uv Texture does not exist.</source>
        <translation>漫反射 UV 贴图不存在。</translation>
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
        <translation>网格</translation>
    </message>
    <message>
        <source>Material Name</source>
        <comment>MVPhysicsSoftClothSection Material Table �ĤT���W��</comment>
        <translation>材质名称</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothPresetSection</name>
    <message>
        <source>File is Unreadable.</source>
        <translation>无法读取文件。</translation>
    </message>
    <message>
        <source>InValid File Path.</source>
        <translation>文件路径无效。</translation>
    </message>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>加载柔性布料自定义配置</translation>
    </message>
    <message>
        <source>INI Files (*.ini)</source>
        <translation>INI 文件 (*.ini)</translation>
    </message>
    <message>
        <source>Save Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>保存柔性布料自定义配置</translation>
    </message>
    <message>
        <source>File is Unwritable.</source>
        <translation>无法写入文件。</translation>
    </message>
    <message>
        <source>Load Soft Ini Profile</source>
        <comment>Open File title</comment>
        <translation>加载柔性布料 INI 配置</translation>
    </message>
    <message>
        <source>[Hot Key] Modify</source>
        <comment>Modify Panel hot key</comment>
        <translation>[热键] 修改</translation>
    </message>
    <message>
        <source>[Hot Key] Physics</source>
        <comment>LensFlare section hot key</comment>
        <translation>[热键] 物理</translation>
    </message>
    <message>
        <source>This object does not have any valid material enabling to create soft cloth.</source>
        <translation>此对象没有可用于创建柔性布料的有效材质。</translation>
    </message>
    <message>
        <source>This object has multiple materials.
 Please select a material and load a gray map image.</source>
        <translation>此对象有多个材质。
 请选择一个材质并加载灰度图像。</translation>
    </message>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <comment>Message Title</comment>
        <translation>[柔性布料物理] Movira 6</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothWindSection</name>
    <message>
        <source>from %1</source>
        <translation>从 %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>到 %1</translation>
    </message>
</context>
<context>
    <name>Message Title</name>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <translation>[柔性布料物理] Movira 6</translation>
    </message>
</context>
<context>
    <name>Modify Panel hot key</name>
    <message>
        <source>[Hot Key] Modify</source>
        <translation>[热键] 修改</translation>
    </message>
</context>
<context>
    <name>Open File title</name>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <translation>加载柔性布料自定义配置</translation>
    </message>
</context>
<context>
    <name>SoftClothCollision</name>
    <message>
        <source>Fold or unfold the collision settings</source>
        <translation>折叠或展开碰撞设置</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>碰撞</translation>
    </message>
    <message>
        <source>The cloth is stopped by rigid bodies instead of passing through them</source>
        <translation>布料会被刚体挡住，而不会穿过刚体</translation>
    </message>
    <message>
        <source>Soft vs. Rigid Collision</source>
        <translation>柔体与刚体碰撞</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units</source>
        <translation>布料与刚体保持的距离 (场景单位)</translation>
    </message>
    <message>
        <source>&amp;Collision Margin</source>
        <translation>碰撞边距(&amp;C)</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units. A larger margin keeps fast cloth from slipping through.</source>
        <translation>布料与刚体保持的距离 (场景单位)。较大的边距可防止快速运动的布料穿透。</translation>
    </message>
    <message>
        <source>Rigid collision margin</source>
        <translation>刚体碰撞边距</translation>
    </message>
    <message>
        <source>Folds of the cloth push each other apart instead of passing through; costs simulation time</source>
        <translation>布料的褶皱相互推开而不会穿透；会增加模拟时间</translation>
    </message>
    <message>
        <source>Self Collision</source>
        <translation>自碰撞</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units</source>
        <translation>布料褶皱之间保持的距离 (场景单位)</translation>
    </message>
    <message>
        <source>Self Collisio&amp;n Margin</source>
        <translation>自碰撞边距(&amp;N)</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units. Too large a margin makes the cloth look thick.</source>
        <translation>布料褶皱之间保持的距离 (场景单位)。边距过大会使布料显得很厚。</translation>
    </message>
    <message>
        <source>Self collision margin</source>
        <translation>自碰撞边距</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialDlg</name>
    <message>
        <source>Soft Cloth Weight Map</source>
        <translation>柔性布料权重图</translation>
    </message>
    <message>
        <source>&amp;Materials</source>
        <translation>材质(&amp;M)</translation>
    </message>
    <message>
        <source>Materials of the object that take part in the soft cloth. The chosen one is edited here and in the panel.</source>
        <translation>参与柔性布料的对象材质。选中的材质可在此处和面板中编辑。</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>材质</translation>
    </message>
    <message>
        <source>Choose a material by clicking it in the viewport; Escape ends picking</source>
        <translation>在视口中点击以选取材质；按 Esc 结束选取</translation>
    </message>
    <message>
        <source>&amp;Pick Material</source>
        <translation>选取材质(&amp;P)</translation>
    </message>
    <message>
        <source>Decide in a table which materials take part in the soft cloth</source>
        <translation>在表格中决定哪些材质参与柔性布料</translation>
    </message>
    <message>
        <source>Material &amp;Table...</source>
        <translation>材质表(&amp;T)...</translation>
    </message>
    <message>
        <source>Weight Image</source>
        <translation>权重图像</translation>
    </message>
    <message>
        <source>Diffuse texture of the material</source>
        <translation>材质的漫反射贴图</translation>
    </message>
    <message>
        <source>Diffuse texture</source>
        <translation>漫反射贴图</translation>
    </message>
    <message>
        <source>&amp;Diffuse</source>
        <translation>漫反射(&amp;D)</translation>
    </message>
    <message>
        <source>Opacity texture of the material</source>
        <translation>材质的不透明度贴图</translation>
    </message>
    <message>
        <source>Opacity texture</source>
        <translation>不透明度贴图</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>不透明度(&amp;O)</translation>
    </message>
    <message>
        <source>Weight image of the material: black holds the vertices, lighter grays let them move. Drop an image file here, or double-click to choose one.</source>
        <translation>材质的权重图像：黑色固定顶点，越亮的灰色越能活动。将图像文件拖放到此处，或双击以选择文件。</translation>
    </message>
    <message>
        <source>Weight image</source>
        <translation>权重图像</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>权重(&amp;W)</translation>
    </message>
    <message>
        <source>The chosen texture, enlarged</source>
        <translation>选中的贴图 (放大)</translation>
    </message>
    <message>
        <source>Preview of the chosen texture</source>
        <translation>选中贴图的预览</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>File that the weight image is linked to</source>
        <translation>权重图像链接的文件</translation>
    </message>
    <message>
        <source>File of the weight image</source>
        <translation>权重图像的文件</translation>
    </message>
    <message>
        <source>No linked file</source>
        <translation>没有链接的文件</translation>
    </message>
    <message>
        <source>Show the folder of the weight image&apos;s file</source>
        <translation>显示权重图像文件所在的文件夹</translation>
    </message>
    <message>
        <source>Open Folde&amp;r</source>
        <translation>打开文件夹(&amp;R)</translation>
    </message>
    <message>
        <source>Load an image file as the weight image</source>
        <translation>加载图像文件作为权重图像</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>加载(&amp;L)...</translation>
    </message>
    <message>
        <source>Save the weight image to a file</source>
        <translation>将权重图像保存到文件</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Take the weight image away from the material</source>
        <translation>从材质中移除权重图像</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Keep the weight image inside the material instead of linking its file</source>
        <translation>将权重图像保存在材质内，而不链接其文件</translation>
    </message>
    <message>
        <source>&amp;Embed</source>
        <translation>嵌入(&amp;E)</translation>
    </message>
    <message>
        <source>Edit the chosen texture in the external image editor</source>
        <translation>在外部图像编辑器中编辑选中的贴图</translation>
    </message>
    <message>
        <source>Ed&amp;it</source>
        <translation>编辑(&amp;I)</translation>
    </message>
    <message>
        <source>Open the UV layout over the diffuse texture in the external image editor</source>
        <translation>在外部图像编辑器中打开叠加在漫反射贴图上的 UV 布局</translation>
    </message>
    <message>
        <source>&amp;UV Layout</source>
        <translation>UV 布局(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>亮度(&amp;B)</translation>
    </message>
    <message>
        <source>Brightness of the weight image, -100 to 100</source>
        <translation>权重图像的亮度 (-100 到 100)</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>对比度(&amp;C)</translation>
    </message>
    <message>
        <source>Contrast of the weight image, -100 to 100</source>
        <translation>权重图像的对比度 (-100 到 100)</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Stop Picking</source>
        <translation>停止选取</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialTable</name>
    <message>
        <source>Material Table</source>
        <translation>材质表</translation>
    </message>
    <message>
        <source>&amp;Materials that take part in the soft cloth:</source>
        <translation>参与柔性布料的材质(&amp;M)：</translation>
    </message>
    <message>
        <source>Ticked materials take part in the soft cloth</source>
        <translation>勾选的材质参与柔性布料</translation>
    </message>
    <message>
        <source>Materials of the object</source>
        <translation>对象的材质</translation>
    </message>
    <message>
        <source>Apply the ticks to the materials</source>
        <translation>将勾选应用于材质</translation>
    </message>
    <message>
        <source>C&amp;onfirm</source>
        <translation>确认(&amp;O)</translation>
    </message>
    <message>
        <source>Leave the materials as they are</source>
        <translation>保持材质不变</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>SoftClothPreset</name>
    <message>
        <source>Fold or unfold the presets</source>
        <translation>折叠或展开预设</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the selected object on or off</source>
        <translation>打开或关闭所选对象的柔性布料物理</translation>
    </message>
    <message>
        <source>Activate Ph&amp;ysics</source>
        <translation>启用物理(&amp;Y)</translation>
    </message>
    <message>
        <source>Turns the selected object into a rigid body</source>
        <translation>将所选对象变为刚体</translation>
    </message>
    <message>
        <source>Rigid Body</source>
        <translation>刚体</translation>
    </message>
    <message>
        <source>The selected object is soft cloth</source>
        <translation>所选对象是柔性布料</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>柔性布料</translation>
    </message>
    <message>
        <source>The cloth falls as the scene&apos;s gravity pulls; otherwise it does not fall</source>
        <translation>布料按场景重力下落；否则不会下落</translation>
    </message>
    <message>
        <source>Use &amp;World Gravity</source>
        <translation>使用世界重力(&amp;W)</translation>
    </message>
    <message>
        <source>Edits go to all materials of the object instead of the selected one only</source>
        <translation>编辑应用于对象的所有材质，而不仅是所选材质</translation>
    </message>
    <message>
        <source>Affect A&amp;ll Materials</source>
        <translation>影响所有材质(&amp;L)</translation>
    </message>
    <message>
        <source>A gray-scale image that says which parts follow the simulation: black stays, white moves</source>
        <translation>表示哪些部分参与模拟的灰度图像：黑色不动，白色活动</translation>
    </message>
    <message>
        <source>Weight &amp;Map</source>
        <translation>权重图(&amp;M)</translation>
    </message>
    <message>
        <source>Opens or closes the weight maps of the object&apos;s materials</source>
        <translation>打开或关闭对象各材质的权重图</translation>
    </message>
    <message>
        <source>Paint Weights…</source>
        <translation>绘制权重…</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>布料</translation>
    </message>
    <message>
        <source>Double-click a preset or press Return to apply its values to the selected material</source>
        <translation>双击预设或按回车键，将其数值应用于所选材质</translation>
    </message>
    <message>
        <source>Cloth presets</source>
        <translation>布料预设</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>棉布</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>牛仔布</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>皮革</translation>
    </message>
    <message>
        <source>Silk</source>
        <translation>丝绸</translation>
    </message>
    <message>
        <source>Rubber</source>
        <translation>橡胶</translation>
    </message>
    <message>
        <source>Wool</source>
        <translation>羊毛</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>亚麻</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>天鹅绒</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>头发</translation>
    </message>
    <message>
        <source>Hair presets</source>
        <translation>头发预设</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短发</translation>
    </message>
    <message>
        <source>Bob</source>
        <translation>波波头</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>长发</translation>
    </message>
    <message>
        <source>Curly</source>
        <translation>卷发</translation>
    </message>
    <message>
        <source>Ponytail</source>
        <translation>马尾</translation>
    </message>
    <message>
        <source>Braid</source>
        <translation>辫子</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>风</translation>
    </message>
    <message>
        <source>Wind presets</source>
        <translation>风预设</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>无风</translation>
    </message>
    <message>
        <source>Breeze</source>
        <translation>微风</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>大风</translation>
    </message>
    <message>
        <source>Gusts</source>
        <translation>阵风</translation>
    </message>
    <message>
        <source>Whirl</source>
        <translation>旋风</translation>
    </message>
    <message>
        <source>Applies the values of a custom profile</source>
        <translation>应用自定义配置的数值</translation>
    </message>
    <message>
        <source>Load Profile…</source>
        <translation>加载配置…</translation>
    </message>
    <message>
        <source>Saves the values that the panel shows as a custom profile</source>
        <translation>将面板中的数值保存为自定义配置</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>保存配置…</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>稳定风</translation>
    </message>
</context>
<context>
    <name>SoftClothProperty</name>
    <message>
        <source>Fold or unfold the property settings</source>
        <translation>折叠或展开属性设置</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms</source>
        <translation>布料的质量 (千克)</translation>
    </message>
    <message>
        <source>M&amp;ass</source>
        <translation>质量(&amp;A)</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms. How hard it is to push the cloth around.</source>
        <translation>布料的质量 (千克)。数值越大，布料越难推动。</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>质量</translation>
    </message>
    <message>
        <source> kg</source>
        <translation> kg</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz</source>
        <translation>每秒解算布料的次数 (赫兹)</translation>
    </message>
    <message>
        <source>Solver Fre&amp;quency</source>
        <translation>解算频率(&amp;Q)</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz. More makes it steadier and stiffer, and costs simulation time.</source>
        <translation>每秒解算布料的次数 (赫兹)。数值越大，布料越稳定、越硬，但会增加模拟时间。</translation>
    </message>
    <message>
        <source>Solver Frequency</source>
        <translation>解算频率</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1</source>
        <translation>布料附着在接触物上的程度 (0 到 1)</translation>
    </message>
    <message>
        <source>F&amp;riction</source>
        <translation>摩擦力(&amp;R)</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1. 0 slides freely, 1 hardly slides at all.</source>
        <translation>布料附着在接触物上的程度 (0 到 1)。0 时自由滑动，1 时几乎不滑动。</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦力</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1</source>
        <translation>布料运动衰减的快慢 (0 到 1)</translation>
    </message>
    <message>
        <source>&amp;Damping</source>
        <translation>阻尼(&amp;D)</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1. 0 lets it swing on, 1 calms it at once.</source>
        <translation>布料运动衰减的快慢 (0 到 1)。0 时持续摆动，1 时立即静止。</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>阻尼</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1</source>
        <translation>空气阻挡布料的程度 (0 到 1)</translation>
    </message>
    <message>
        <source>Dra&amp;g</source>
        <translation>空气阻力(&amp;G)</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1. 0 cuts through the air, 1 is carried along with it.</source>
        <translation>空气阻挡布料的程度 (0 到 1)。0 时穿过空气，1 时随空气一起移动。</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>空气阻力</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest</source>
        <translation>布料可离开固定处的距离，以静止长度的倍数表示</translation>
    </message>
    <message>
        <source>Tet&amp;her Limit</source>
        <translation>系绳限制(&amp;H)</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest. At 1 it never gets longer than it was modelled.</source>
        <translation>布料可离开固定处的距离，以静止长度的倍数表示。为 1 时，布料不会比建模时更长。</translation>
    </message>
    <message>
        <source>Tether Limit</source>
        <translation>系绳限制</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101</source>
        <translation>系绳限制的严格程度 (1 到 101)</translation>
    </message>
    <message>
        <source>&amp;Tether Stiffness</source>
        <translation>系绳刚度(&amp;T)</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101. 1 is the strictest, 101 lets the cloth pass the limit.</source>
        <translation>系绳限制的严格程度 (1 到 101)。1 最严格，101 时布料可以超出限制。</translation>
    </message>
    <message>
        <source>Tether Stiffness</source>
        <translation>系绳刚度</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent</source>
        <translation>减少的拉伸刚度 (百分比)</translation>
    </message>
    <message>
        <source>&amp;Stiffness</source>
        <translation>刚度(&amp;S)</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent. At 0 % the cloth keeps its size, at 100 % it stretches freely; below 0 % it is stiffer still.</source>
        <translation>减少的拉伸刚度 (百分比)。0 % 时布料保持大小，100 % 时自由拉伸；低于 0 % 时更硬。</translation>
    </message>
    <message>
        <source>Stiffness</source>
        <translation>刚度</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent</source>
        <translation>减少的弯曲刚度 (百分比)</translation>
    </message>
    <message>
        <source>&amp;Bending</source>
        <translation>弯曲(&amp;B)</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent. At 0 % the cloth hardly folds, at 100 % it folds freely; below 0 % it is stiffer still.</source>
        <translation>减少的弯曲刚度 (百分比)。0 % 时布料几乎不折叠，100 % 时自由折叠；低于 0 % 时更硬。</translation>
    </message>
    <message>
        <source>Bending</source>
        <translation>弯曲</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths</source>
        <translation>对象的运动传给布料的程度 (十分之一)</translation>
    </message>
    <message>
        <source>&amp;Inertia Scale</source>
        <translation>惯性缩放(&amp;I)</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths. At 0 nothing reaches it, at 10 all, at 20 twice as much; applies to straight movement, turning and centrifugal force alike.</source>
        <translation>对象的运动传给布料的程度 (十分之一)。0 时完全不传，10 时全部，20 时加倍；同样适用于直线运动、旋转和离心力。</translation>
    </message>
    <message>
        <source>Inertia Scale</source>
        <translation>惯性缩放</translation>
    </message>
</context>
<context>
    <name>SoftClothWindSetting</name>
    <message>
        <source>Fold or unfold the wind settings</source>
        <translation>折叠或展开风设置</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>风</translation>
    </message>
    <message>
        <source>Steady push of the wind along each axis, in scene units per second squared</source>
        <translation>风沿各轴的持续推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>External Acceleration</source>
        <translation>外部加速度</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared</source>
        <translation>风沿 X 轴的持续推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared. A negative number blows the other way.</source>
        <translation>风沿 X 轴的持续推力 (场景单位/秒²)。负数表示反方向吹。</translation>
    </message>
    <message>
        <source>External acceleration X</source>
        <translation>外部加速度 X</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared</source>
        <translation>风沿 Y 轴的持续推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared. A negative number blows the other way.</source>
        <translation>风沿 Y 轴的持续推力 (场景单位/秒²)。负数表示反方向吹。</translation>
    </message>
    <message>
        <source>External acceleration Y</source>
        <translation>外部加速度 Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared</source>
        <translation>风沿 Z 轴的持续推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared. A negative number blows the other way.</source>
        <translation>风沿 Z 轴的持续推力 (场景单位/秒²)。负数表示反方向吹。</translation>
    </message>
    <message>
        <source>External acceleration Z</source>
        <translation>外部加速度 Z</translation>
    </message>
    <message>
        <source>Largest random push of the wind along each axis, in scene units per second squared</source>
        <translation>风沿各轴的最大随机推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>Random Acceleration</source>
        <translation>随机加速度</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared</source>
        <translation>风沿 X 轴的最大随机推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>风沿 X 轴的最大随机推力 (场景单位/秒²)。随风频率时强时弱。</translation>
    </message>
    <message>
        <source>Random acceleration X</source>
        <translation>随机加速度 X</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared</source>
        <translation>风沿 Y 轴的最大随机推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>风沿 Y 轴的最大随机推力 (场景单位/秒²)。随风频率时强时弱。</translation>
    </message>
    <message>
        <source>Random acceleration Y</source>
        <translation>随机加速度 Y</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared</source>
        <translation>风沿 Z 轴的最大随机推力 (场景单位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>风沿 Z 轴的最大随机推力 (场景单位/秒²)。随风频率时强时弱。</translation>
    </message>
    <message>
        <source>Random acceleration Z</source>
        <translation>随机加速度 Z</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz</source>
        <translation>随机推力变化的频率 (赫兹)</translation>
    </message>
    <message>
        <source>Wind Freq&amp;uency</source>
        <translation>风频率(&amp;U)</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz. 0 keeps it as it is.</source>
        <translation>随机推力变化的频率 (赫兹)。0 时保持不变。</translation>
    </message>
    <message>
        <source>Wind Frequency</source>
        <translation>风频率</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles</source>
        <translation>随机推力的变化幅度：乘以两个滑块之间的随机数</translation>
    </message>
    <message>
        <source>Rand&amp;om Factor</source>
        <translation>随机系数(&amp;O)</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles. Drag a handle or use the arrow keys to move it; the handles keep their order.</source>
        <translation>随机推力的变化幅度：乘以两个滑块之间的随机数。拖动滑块或使用方向键可移动它；滑块的先后顺序不变。</translation>
    </message>
    <message>
        <source>Random Factor</source>
        <translation>随机系数</translation>
    </message>
    <message>
        <source>Smallest factor</source>
        <translation>最小系数</translation>
    </message>
    <message>
        <source>from 0</source>
        <translation>从 0</translation>
    </message>
    <message>
        <source>Largest factor</source>
        <translation>最大系数</translation>
    </message>
    <message>
        <source>to 10</source>
        <translation>到 10</translation>
    </message>
</context>
</TS>
