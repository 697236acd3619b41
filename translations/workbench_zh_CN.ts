<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Host::CallJournal</name>
    <message>
        <source>Only the last calls are kept: the first %L1 since the journal was emptied are gone.</source>
        <translation>只保留最近的调用：自清空记录以来最早的 %L1 条已不在。</translation>
    </message>
</context>
<context>
    <name>Host::CallJournalModel</name>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
</context>
<context>
    <name>Host::Centre</name>
    <message>
        <source>The model is not shown, because there is no OpenGL 3.3 on this display.</source>
        <translation>此显示器上没有 OpenGL 3.3，因此不显示模型。</translation>
    </message>
    <message>
        <source>The model is not shown, because this workbench was built without a view of it.</source>
        <translation>此程序构建时不含模型视图，因此不显示模型。</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>主程序调用</translation>
    </message>
</context>
<context>
    <name>Host::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete Object</source>
        <translation>删除对象(&amp;D)</translation>
    </message>
    <message>
        <source>Image &amp;Editor…</source>
        <translation>图像编辑器(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做(&amp;R) %1</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>图像编辑器</translation>
    </message>
    <message>
        <source>Program that opens weight images; empty for what the desktop opens them with:</source>
        <translation>打开权重图像的程序；留空则使用桌面默认的程序：</translation>
    </message>
</context>
<context>
    <name>Host::HostApplication</name>
    <message>
        <source>Import %1</source>
        <translation>导入 %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Soft cloth on</source>
        <translation>打开柔性布料</translation>
    </message>
    <message>
        <source>Soft cloth off</source>
        <translation>关闭柔性布料</translation>
    </message>
    <message>
        <source>Cancel soft cloth</source>
        <translation>取消柔性布料</translation>
    </message>
    <message>
        <source>embedded weight image</source>
        <translation>嵌入的权重图像</translation>
    </message>
    <message>
        <source>Load weight image %1</source>
        <translation>加载权重图像 %1</translation>
    </message>
    <message>
        <source>Delete weight image</source>
        <translation>删除权重图像</translation>
    </message>
    <message>
        <source>Embed weight image</source>
        <translation>嵌入权重图像</translation>
    </message>
    <message>
        <source>Adjust weight image</source>
        <translation>调整权重图像</translation>
    </message>
    <message>
        <source>The edited weight image is black wherever the material has vertices; the former one is kept.</source>
        <translation>编辑后的权重图像在材质的所有顶点处都是黑色；保留原来的图像。</translation>
    </message>
    <message>
        <source>Edit weight image</source>
        <translation>编辑权重图像</translation>
    </message>
    <message>
        <source>The weight image could not be saved as &quot;%1&quot;: %2.</source>
        <translation>无法将权重图像保存为“%1”：%2。</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>没有图像</translation>
    </message>
    <message>
        <source>the material is linked to this file, whose image would be adjusted again</source>
        <translation>材质链接到此文件，图像会被再次调整</translation>
    </message>
    <message>
        <source>images of this format cannot be written</source>
        <translation>无法写入此格式的图像</translation>
    </message>
    <message>
        <source>Convert to rigid body</source>
        <translation>转换为刚体</translation>
    </message>
    <message>
        <source>World gravity</source>
        <translation>世界重力</translation>
    </message>
    <message>
        <source>Ignore materials</source>
        <translation>忽略材质</translation>
    </message>
    <message>
        <source>Soft cloth property</source>
        <translation>柔性布料属性</translation>
    </message>
    <message>
        <source>Soft cloth collision</source>
        <translation>柔性布料碰撞</translation>
    </message>
    <message>
        <source>Soft cloth wind</source>
        <translation>柔性布料风</translation>
    </message>
    <message>
        <source>Add %1 to the soft cloth</source>
        <translation>将 %1 加入柔性布料</translation>
    </message>
    <message>
        <source>Take %1 out of the soft cloth</source>
        <translation>将 %1 移出柔性布料</translation>
    </message>
    <message>
        <source>Load weight image</source>
        <translation>加载权重图像</translation>
    </message>
    <message>
        <source>Load soft cloth settings</source>
        <translation>加载柔性布料设置</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>打开图像</translation>
    </message>
    <message>
        <source>embedded texture of %1</source>
        <translation>%1 的嵌入贴图</translation>
    </message>
    <message>
        <source>Make soft cloth</source>
        <translation>创建柔性布料</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>删除 %1 个对象</translation>
    </message>
    <message>
        <source>The model &quot;%1&quot; is too large for this scene: %2.</source>
        <translation>模型“%1”对此场景来说太大：%2。</translation>
    </message>
    <message>
        <source>The mesh &quot;%1&quot; has no texture coordinates, which would say where the image lies on it.</source>
        <translation>网格“%1”没有纹理坐标，无法确定图像在其上的位置。</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp)</source>
        <translation>图像 (*.png *.jpg *.jpeg *.bmp)</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</source>
        <translation>图像 (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</translation>
    </message>
    <message>
        <source>Keep UV Layout</source>
        <translation>保存 UV 布局</translation>
    </message>
</context>
<context>
    <name>Host::HostCallsView</name>
    <message>
        <source>Filter calls, for example SetSoftCloth</source>
        <translation>筛选调用，例如 SetSoftCloth</translation>
    </message>
    <message>
        <source>Shows only the calls that contain this text</source>
        <translation>只显示包含此文本的调用</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copies the whole journal as text</source>
        <translation>将整个日志复制为文本</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Empties the journal</source>
        <translation>清空日志</translation>
    </message>
    <message>
        <source>Filter of the host calls</source>
        <translation>主程序调用的筛选器</translation>
    </message>
    <message>
        <source>Host calls</source>
        <translation>主程序调用</translation>
    </message>
</context>
<context>
    <name>Host::HostControls</name>
    <message>
        <source>Application</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>Family A (0x7)</source>
        <translation>系列 A (0x7)</translation>
    </message>
    <message>
        <source>Family B (0x1800000)</source>
        <translation>系列 B (0x1800000)</translation>
    </message>
    <message>
        <source>Neither</source>
        <translation>都不是</translation>
    </message>
    <message>
        <source>The application that runs the plug-in. Another choice starts the plug-in again.</source>
        <translation>运行插件的应用程序。更改后会重新启动插件。</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Physics engine of the scene. The panel is shown for engine 1 only.</source>
        <translation>场景的物理引擎。面板只在引擎 1 下显示。</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>引擎</translation>
    </message>
    <message>
        <source>Selected object</source>
        <translation>所选对象</translation>
    </message>
    <message>
        <source>Soft cloth physics</source>
        <translation>柔性布料物理</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the object, as the host&apos;s own menus would</source>
        <translation>如同主程序自己的菜单一样，切换对象的柔性布料物理</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Type code. Shown types: 1 to 6, 30 to 34, 38, 39, 51 to 53. Types 5 and 6 can be converted.</source>
        <translation>类型代码。显示的类型：1 到 6、30 到 34、38、39、51 到 53。类型 5 和 6 可以转换。</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Kind code. Kind 14 has no choice of rigid body or soft cloth.</source>
        <translation>种类代码。种类 14 不能选择刚体或柔性布料。</translation>
    </message>
    <message>
        <source>Convert state</source>
        <translation>转换状态</translation>
    </message>
    <message>
        <source>3 is at rest; another state of a type 5 or 6 object hides the panel in family A</source>
        <translation>3 表示静止；类型 5 或 6 的对象处于其他状态时，系列 A 会隐藏面板</translation>
    </message>
    <message>
        <source>Hides the panel for this object</source>
        <translation>对此对象隐藏面板</translation>
    </message>
    <message>
        <source>Blocked in family A</source>
        <translation>在系列 A 中锁定</translation>
    </message>
    <message>
        <source>Blocked in family B</source>
        <translation>在系列 B 中锁定</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>None (0)</source>
        <translation>无 (0)</translation>
    </message>
    <message>
        <source>Weight map (25)</source>
        <translation>权重图 (25)</translation>
    </message>
    <message>
        <source>Another (7)</source>
        <translation>其他 (7)</translation>
    </message>
    <message>
        <source>Dialog mode</source>
        <translation>对话框模式</translation>
    </message>
    <message>
        <source>Material (7)</source>
        <translation>材质 (7)</translation>
    </message>
    <message>
        <source>Another (3)</source>
        <translation>其他 (3)</translation>
    </message>
    <message>
        <source>Pick mode</source>
        <translation>选取模式</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>Events by hand</source>
        <translation>手动事件</translation>
    </message>
    <message>
        <source>Topology (0x2)</source>
        <translation>拓扑 (0x2)</translation>
    </message>
    <message>
        <source>Replaced (0x4)</source>
        <translation>已替换 (0x4)</translation>
    </message>
    <message>
        <source>Material list (0x8)</source>
        <translation>材质列表 (0x8)</translation>
    </message>
    <message>
        <source>Removed (0x40)</source>
        <translation>已移除 (0x40)</translation>
    </message>
    <message>
        <source>Material names (0x100)</source>
        <translation>材质名称 (0x100)</translation>
    </message>
    <message>
        <source>Sends that the data of the selected objects have changed</source>
        <translation>通知所选对象的数据已更改</translation>
    </message>
    <message>
        <source>Data changed</source>
        <translation>数据更改</translation>
    </message>
    <message>
        <source>Sends this event to the plug-in</source>
        <translation>将此事件发送给插件</translation>
    </message>
    <message>
        <source>Hierarchy changed</source>
        <translation>层级更改</translation>
    </message>
    <message>
        <source>Undo or redo done</source>
        <translation>撤销或重做完成</translation>
    </message>
    <message>
        <source>About to convert</source>
        <translation>即将转换</translation>
    </message>
    <message>
        <source>Several materials detected</source>
        <translation>检测到多个材质</translation>
    </message>
    <message>
        <source>Edited image saved</source>
        <translation>编辑的图像已保存</translation>
    </message>
    <message>
        <source>Failing calls</source>
        <translation>失败的调用</translation>
    </message>
    <message>
        <source>GetSoftClothCollision</source>
        <translation>GetSoftClothCollision</translation>
    </message>
    <message>
        <source>Host operation that is to fail, as the Host Calls view names it</source>
        <translation>要失败的主程序操作，名称与主程序调用列表中相同</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Status that the failing call answers</source>
        <translation>失败的调用返回的状态</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Let it fail</source>
        <translation>使其失败</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>全部恢复</translation>
    </message>
</context>
<context>
    <name>Host::ImageEditor</name>
    <message>
        <source>there is no folder for temporary files</source>
        <translation>没有用于临时文件的文件夹</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; for the image editor could not be written: %2.</source>
        <translation>无法写入供图像编辑器使用的文件“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>Host::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>系统语言(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Host::Legend</name>
    <message>
        <source>Held (black)</source>
        <translation>固定（黑）</translation>
    </message>
    <message>
        <source>Free (white)</source>
        <translation>自由（白）</translation>
    </message>
    <message>
        <source>No weight image</source>
        <translation>无权重图像</translation>
    </message>
    <message>
        <source>Legend of the weights</source>
        <translation>权重图例</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>Scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>Host Controls</source>
        <translation>主程序控制</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>The page of the host&apos;s panels that the plug-in asked for last</source>
        <translation>插件最后请求的主程序面板页</translation>
    </message>
    <message>
        <source>Panel page %1, place %2, option %3</source>
        <translation>面板页 %1，位置 %2，选项 %3</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
</context>
<context>
    <name>Host::MovingVertices</name>
    <message>
        <source>How many vertices of the chosen material the weight image lets move. More than %L1 are slow to simulate.</source>
        <translation>所选材质的顶点中，权重图像允许移动的数量。超过 %L1 个时模拟会很慢。</translation>
    </message>
    <message>
        <source>%1: %L2 of %L3 vertices move</source>
        <translation>%1：%L3 个顶点中有 %L2 个可移动</translation>
    </message>
</context>
<context>
    <name>Host::PanelActions</name>
    <message>
        <source>&amp;Weight Map Dialog</source>
        <translation>权重图对话框(&amp;W)</translation>
    </message>
    <message>
        <source>Opens or closes the dialog that chooses the material and its weight image</source>
        <translation>打开或关闭选择材质及其权重图像的对话框</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>柔性布料</translation>
    </message>
</context>
<context>
    <name>Host::PickGuide</name>
    <message>
        <source>Click a material to pick it; Escape ends picking.</source>
        <translation>单击材质以拾取；按 Esc 结束拾取。</translation>
    </message>
</context>
<context>
    <name>Host::RecentFiles</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Host::SceneFiles</name>
    <message>
        <source>Soft cloth scenes (*.clothscene)</source>
        <translation>柔性布料场景 (*.clothscene)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>新建场景(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>打开场景(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Import Model…</source>
        <translation>导入模型(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Recent Files</source>
        <translation>最近的文件(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Scene</source>
        <translation>保存场景(&amp;S)</translation>
    </message>
    <message>
        <source>Save Scene &amp;As…</source>
        <translation>场景另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>正在读取 %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import cancelled</source>
        <translation>导入已取消</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Import Model</source>
        <translation>导入模型</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>模型 (*.%1)</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>打开场景</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>保存场景</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>The scene has changes that are not saved.</source>
        <translation>场景中有未保存的更改。</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
</context>
<context>
    <name>Host::SceneTree</name>
    <message>
        <source>Objects of the scene</source>
        <translation>场景中的对象</translation>
    </message>
</context>
<context>
    <name>Host::UnitDialog</name>
    <message>
        <source>Import Model</source>
        <translation>导入模型</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say in which unit it was made.</source>
        <translation>“%1”没有注明所用的单位。</translation>
    </message>
    <message>
        <source>&amp;Unit of the file</source>
        <translation>文件的单位(&amp;U)</translation>
    </message>
    <message>
        <source>Largest side</source>
        <translation>最长边</translation>
    </message>
    <message>
        <source>%1 cm in the scene</source>
        <translation>在场景中为 %1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewActions</name>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>缩放到所选(&amp;F)</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>缩放到全部(&amp;A)</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>前视图(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation>侧视图(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>顶视图(&amp;T)</translation>
    </message>
    <message>
        <source>Shows the weight images on the model: what is held and what moves freely</source>
        <translation>在模型上显示权重图像：哪些部分固定，哪些部分自由移动</translation>
    </message>
    <message>
        <source>Show Wei&amp;ghts</source>
        <translation>显示权重(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Host::ViewTexts</name>
    <message>
        <source>Grid: %1 cm</source>
        <translation>网格：%1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewedScene</name>
    <message>
        <source>Triangles that cannot be shown, because a corner is nowhere: %L1</source>
        <translation>因顶点位置无效而无法显示的三角形：%L1</translation>
    </message>
    <message>
        <source>Textures that cannot be read: %1</source>
        <translation>无法读取的贴图：%1</translation>
    </message>
</context>
<context>
    <name>Host::ViewportWidget</name>
    <message>
        <source>View of the model</source>
        <translation>模型视图</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>ImageText</name>
    <message>
        <source>it is no JPEG, BMP, GIF, PNG or TGA image</source>
        <translation>不是 JPEG、BMP、GIF、PNG 或 TGA 图像</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 on a side are too many</source>
        <translation>大小为 %1 x %2 像素，超出了每边 %3 像素的上限</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 in all are too many</source>
        <translation>大小为 %1 x %2 像素，超出了总计 %3 像素的上限</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>内容不完整</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>内容为空</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>文件太大</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2.</source>
        <translation>无法读取图像“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>ModelText</name>
    <message>
        <source>The model file &quot;%1&quot; could not be read: %2</source>
        <translation>无法读取模型文件“%1”：%2</translation>
    </message>
    <message>
        <source>The model in &quot;%1&quot; is too large: %2.</source>
        <translation>“%1”中的模型太大：%2。</translation>
    </message>
    <message>
        <source>There is no model file &quot;%1&quot;.</source>
        <translation>没有模型文件“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is empty.</source>
        <translation>模型文件“%1”是空的。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is too large.</source>
        <translation>模型文件“%1”太大。</translation>
    </message>
    <message>
        <source>it is damaged.</source>
        <translation>文件已损坏。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; holds no surfaces.</source>
        <translation>模型文件“%1”不包含任何曲面。</translation>
    </message>
</context>
<context>
    <name>PanelHint</name>
    <message>
        <source>The scene is empty. Import a model with File &gt; Import Model, or drop its file on this window.</source>
        <translation>场景为空。请用“文件 &gt; 导入模型”导入模型，或将其文件拖放到此窗口。</translation>
    </message>
    <message>
        <source>Click an object in the scene to edit its soft cloth.</source>
        <translation>单击场景中的对象以编辑其柔性布料。</translation>
    </message>
    <message>
        <source>Several objects are selected. Select one alone to edit its soft cloth.</source>
        <translation>选择了多个对象。请只选择一个以编辑其柔性布料。</translation>
    </message>
    <message>
        <source>Soft cloth needs physics engine 1: see Host Controls.</source>
        <translation>柔性布料需要物理引擎 1：请参阅主程序控制。</translation>
    </message>
    <message>
        <source>There is no soft cloth for this object. Its type, its kind or a block may keep it out: see Host Controls.</source>
        <translation>此对象没有柔性布料。原因可能是其类型、种类或锁定：请参阅主程序控制。</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>%1 is not a plug-in for this host.</source>
        <translation>%1 不是此主程序的插件。</translation>
    </message>
    <message>
        <source>%1 does not work in this host.</source>
        <translation>%1 无法在此主程序中运行。</translation>
    </message>
    <message>
        <source>%1 did not start (0x%2).</source>
        <translation>%1 未能启动 (0x%2)。</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for this host: %2</source>
        <translation>%1 不是此主程序的插件：%2</translation>
    </message>
    <message>
        <source>There is no resource file &quot;%1&quot;.</source>
        <translation>没有资源文件“%1”。</translation>
    </message>
</context>
<context>
    <name>PreviewText</name>
    <message>
        <source>The preview stopped because the cloth got out of control. Reset starts it again.</source>
        <translation>布料失去控制，预览已停止。重置可重新开始。</translation>
    </message>
</context>
<context>
    <name>Scene</name>
    <message>
        <source>Several values</source>
        <translation>多个值</translation>
    </message>
</context>
<context>
    <name>SceneText</name>
    <message>
        <source>is named a second time</source>
        <translation>被重复指定</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>is both linked and embedded</source>
        <translation>既是链接又是嵌入</translation>
    </message>
    <message>
        <source>is damaged: its check sum does not fit</source>
        <translation>已损坏：校验和不符</translation>
    </message>
    <message>
        <source>does not hold as many items as it says</source>
        <translation>包含的项目数与标明的不符</translation>
    </message>
    <message>
        <source>cannot be unpacked</source>
        <translation>无法解压</translation>
    </message>
    <message>
        <source>its values are nested more than %1 levels deep</source>
        <translation>值的嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>it has more than %1 values</source>
        <translation>值的数量超过 %1 个</translation>
    </message>
    <message>
        <source>must be a group of values</source>
        <translation>必须是一组值</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>must be a list</source>
        <translation>必须是列表</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>必须是真 (true) 或假 (false)</translation>
    </message>
    <message>
        <source>must be text</source>
        <translation>必须是文本</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>必须是数字</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>必须是 %1 到 %2 之间的整数</translation>
    </message>
    <message>
        <source>is not valid base64</source>
        <translation>不是有效的 base64</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>The scene could not be saved as &quot;%1&quot;: %2.</source>
        <translation>无法将场景保存为“%1”：%2。</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; could not be loaded: %2.</source>
        <translation>无法加载场景文件“%1”：%2。</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>缺少名称</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>场景太大</translation>
    </message>
    <message>
        <source>There is no scene file &quot;%1&quot;.</source>
        <translation>没有场景文件“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; is empty.</source>
        <translation>场景文件“%1”是空的。</translation>
    </message>
    <message>
        <source>it is damaged or no scene file at all (%1 at byte %2)</source>
        <translation>文件已损坏或不是场景文件（第 %2 字节：%1）</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>must be a list of 4 numbers</source>
        <translation>必须是 4 个数字的列表</translation>
    </message>
    <message>
        <source>is %1, which is in use already</source>
        <translation>是 %1，已被使用</translation>
    </message>
    <message>
        <source>has a texture already</source>
        <translation>已有贴图</translation>
    </message>
    <message>
        <source>must hold three indices per triangle</source>
        <translation>每个三角形必须有三个索引</translation>
    </message>
    <message>
        <source>names a vertex that the mesh does not have</source>
        <translation>指向网格中不存在的顶点</translation>
    </message>
    <message>
        <source>names a material that the object does not have</source>
        <translation>指向对象中不存在的材质</translation>
    </message>
    <message>
        <source>must hold one item per vertex or none</source>
        <translation>必须每个顶点一项，或者为空</translation>
    </message>
    <message>
        <source>has a slot on this mesh already</source>
        <translation>在此网格上已有插槽</translation>
    </message>
    <message>
        <source>is no object of the scene</source>
        <translation>不是场景中的对象</translation>
    </message>
    <message>
        <source>changes something that the scene does not have</source>
        <translation>更改了场景中不存在的内容</translation>
    </message>
    <message>
        <source>it is no scene of this application</source>
        <translation>不是此应用程序的场景</translation>
    </message>
    <message>
        <source>it was written by a newer version of this application</source>
        <translation>由此应用程序的更新版本写入</translation>
    </message>
    <message>
        <source>it has %1 meshes, and more than %2 are too many</source>
        <translation>有 %1 个网格，超出了 %2 个的上限</translation>
    </message>
    <message>
        <source>it has %1 materials, and more than %2 are too many</source>
        <translation>有 %1 个材质，超出了 %2 个的上限</translation>
    </message>
    <message>
        <source>it has %1 vertices, and more than %2 are too many</source>
        <translation>有 %1 个顶点，超出了 %2 个的上限</translation>
    </message>
    <message>
        <source>it has %1 triangles, and more than %2 are too many</source>
        <translation>有 %1 个三角形，超出了 %2 个的上限</translation>
    </message>
    <message>
        <source>must be a whole number in quotation marks</source>
        <translation>必须是带引号的整数</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>超出范围</translation>
    </message>
    <message>
        <source>must be a list of %1 numbers</source>
        <translation>必须是 %1 个数字的列表</translation>
    </message>
    <message>
        <source>must be %1 bytes</source>
        <translation>必须是 %1 字节</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>Millimetre</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>Centimetre</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>米</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A stand-in host for the soft cloth physics panel.</source>
        <translation>柔性布料物理面板的替代主程序。</translation>
    </message>
    <message>
        <source>Model or scene file; the demo character without.</source>
        <translation>模型或场景文件；不指定则为演示角色。</translation>
    </message>
    <message>
        <source>Application family: a, b or none.</source>
        <translation>应用程序系列：a、b 或 none。</translation>
    </message>
    <message>
        <source>The plug-in library to load.</source>
        <translation>要加载的插件库。</translation>
    </message>
    <message>
        <source>Run the main job unattended and write pictures into this folder.</source>
        <translation>无人值守地执行主要工作，并将图片写入此文件夹。</translation>
    </message>
    <message>
        <source>Program, with its options, that opens images in place of the one chosen.</source>
        <translation>代替所选程序打开图像的程序及其选项。</translation>
    </message>
    <message>
        <source>Language in place of the one chosen, for example de or zh_TW.</source>
        <translation>代替所选语言的语言，例如 de 或 zh_TW。</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;, but these: %2.</source>
        <translation>没有语言“%1”，只有：%2。</translation>
    </message>
    <message>
        <source>There is no application family &quot;%1&quot;, but these: a, b, none.</source>
        <translation>没有应用程序系列“%1”，但有这些：a、b、none。</translation>
    </message>
    <message>
        <source>Only one model can be opened; &quot;%1&quot; is one too many.</source>
        <translation>只能打开一个模型；“%1”是多余的。</translation>
    </message>
    <message>
        <source>Unit of a model whose file does not name one, in place of asking: %1.</source>
        <translation>文件未注明单位的模型所用的单位，用来代替询问：%1。</translation>
    </message>
    <message>
        <source>There is no unit &quot;%1&quot;, but these: %2.</source>
        <translation>没有单位“%1”，只有：%2。</translation>
    </message>
</context>
</TS>
