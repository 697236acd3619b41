<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>Host::CallJournal</name>
    <message>
        <source>Only the last calls are kept: the first %L1 since the journal was emptied are gone.</source>
        <translation>只保留最近的呼叫：自清空記錄以來最早的 %L1 筆已不在。</translation>
    </message>
</context>
<context>
    <name>Host::CallJournalModel</name>
    <message>
        <source>Service</source>
        <translation>服務</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>呼叫</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
</context>
<context>
    <name>Host::Centre</name>
    <message>
        <source>The model is not shown, because there is no OpenGL 3.3 on this display.</source>
        <translation>此顯示器上沒有 OpenGL 3.3，因此不顯示模型。</translation>
    </message>
    <message>
        <source>The model is not shown, because this workbench was built without a view of it.</source>
        <translation>此程式建置時不含模型檢視，因此不顯示模型。</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>主程式呼叫</translation>
    </message>
</context>
<context>
    <name>Host::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete Object</source>
        <translation>刪除物件(&amp;D)</translation>
    </message>
    <message>
        <source>Image &amp;Editor…</source>
        <translation>影像編輯器(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>復原(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做(&amp;R) %1</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>影像編輯器</translation>
    </message>
    <message>
        <source>Program that opens weight images; empty for what the desktop opens them with:</source>
        <translation>開啟權重影像的程式；留空則使用桌面預設的程式：</translation>
    </message>
</context>
<context>
    <name>Host::HostApplication</name>
    <message>
        <source>Import %1</source>
        <translation>匯入 %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>刪除 %1</translation>
    </message>
    <message>
        <source>Soft cloth on</source>
        <translation>開啟柔體布料</translation>
    </message>
    <message>
        <source>Soft cloth off</source>
        <translation>關閉柔體布料</translation>
    </message>
    <message>
        <source>Cancel soft cloth</source>
        <translation>取消柔體布料</translation>
    </message>
    <message>
        <source>embedded weight image</source>
        <translation>嵌入的權重影像</translation>
    </message>
    <message>
        <source>Load weight image %1</source>
        <translation>載入權重影像 %1</translation>
    </message>
    <message>
        <source>Delete weight image</source>
        <translation>刪除權重影像</translation>
    </message>
    <message>
        <source>Embed weight image</source>
        <translation>嵌入權重影像</translation>
    </message>
    <message>
        <source>Adjust weight image</source>
        <translation>調整權重影像</translation>
    </message>
    <message>
        <source>The edited weight image is black wherever the material has vertices; the former one is kept.</source>
        <translation>編輯後的權重影像在材質的所有頂點處都是黑色；保留原來的影像。</translation>
    </message>
    <message>
        <source>Edit weight image</source>
        <translation>編輯權重影像</translation>
    </message>
    <message>
        <source>The weight image could not be saved as &quot;%1&quot;: %2.</source>
        <translation>無法將權重影像儲存為「%1」：%2。</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>沒有影像</translation>
    </message>
    <message>
        <source>the material is linked to this file, whose image would be adjusted again</source>
        <translation>材質連結到此檔案，影像會再次被調整</translation>
    </message>
    <message>
        <source>images of this format cannot be written</source>
        <translation>無法寫入此格式的影像</translation>
    </message>
    <message>
        <source>Convert to rigid body</source>
        <translation>轉換為剛體</translation>
    </message>
    <message>
        <source>World gravity</source>
        <translation>世界重力</translation>
    </message>
    <message>
        <source>Ignore materials</source>
        <translation>忽略材質</translation>
    </message>
    <message>
        <source>Soft cloth property</source>
        <translation>柔體布料屬性</translation>
    </message>
    <message>
        <source>Soft cloth collision</source>
        <translation>柔體布料碰撞</translation>
    </message>
    <message>
        <source>Soft cloth wind</source>
        <translation>柔體布料風</translation>
    </message>
    <message>
        <source>Add %1 to the soft cloth</source>
        <translation>將 %1 加入柔體布料</translation>
    </message>
    <message>
        <source>Take %1 out of the soft cloth</source>
        <translation>將 %1 移出柔體布料</translation>
    </message>
    <message>
        <source>Load weight image</source>
        <translation>載入權重影像</translation>
    </message>
    <message>
        <source>Load soft cloth settings</source>
        <translation>載入柔體布料設定</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>儲存影像</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>開啟影像</translation>
    </message>
    <message>
        <source>embedded texture of %1</source>
        <translation>%1 的嵌入貼圖</translation>
    </message>
    <message>
        <source>Make soft cloth</source>
        <translation>建立柔體布料</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>刪除 %1 個物件</translation>
    </message>
    <message>
        <source>The model &quot;%1&quot; is too large for this scene: %2.</source>
        <translation>模型「%1」對此場景來說太大：%2。</translation>
    </message>
    <message>
        <source>The mesh &quot;%1&quot; has no texture coordinates, which would say where the image lies on it.</source>
        <translation>網格「%1」沒有紋理座標，無法確定影像在其上的位置。</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp)</source>
        <translation>影像 (*.png *.jpg *.jpeg *.bmp)</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</source>
        <translation>影像 (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</translation>
    </message>
    <message>
        <source>Keep UV Layout</source>
        <translation>儲存 UV 配置</translation>
    </message>
</context>
<context>
    <name>Host::HostCallsView</name>
    <message>
        <source>Filter calls, for example SetSoftCloth</source>
        <translation>篩選呼叫，例如 SetSoftCloth</translation>
    </message>
    <message>
        <source>Shows only the calls that contain this text</source>
        <translation>只顯示包含此文字的呼叫</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copies the whole journal as text</source>
        <translation>將整份記錄複製為文字</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Empties the journal</source>
        <translation>清空記錄</translation>
    </message>
    <message>
        <source>Filter of the host calls</source>
        <translation>主程式呼叫的篩選器</translation>
    </message>
    <message>
        <source>Host calls</source>
        <translation>主程式呼叫</translation>
    </message>
</context>
<context>
    <name>Host::HostControls</name>
    <message>
        <source>Application</source>
        <translation>應用程式</translation>
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
        <translation>皆非</translation>
    </message>
    <message>
        <source>The application that runs the plug-in. Another choice starts the plug-in again.</source>
        <translation>執行外掛程式的應用程式。變更後會重新啟動外掛程式。</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Physics engine of the scene. The panel is shown for engine 1 only.</source>
        <translation>場景的物理引擎。面板只在引擎 1 下顯示。</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>引擎</translation>
    </message>
    <message>
        <source>Selected object</source>
        <translation>所選物件</translation>
    </message>
    <message>
        <source>Soft cloth physics</source>
        <translation>柔體布料物理</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the object, as the host&apos;s own menus would</source>
        <translation>如同主程式自己的選單，切換物件的柔體布料物理</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Type code. Shown types: 1 to 6, 30 to 34, 38, 39, 51 to 53. Types 5 and 6 can be converted.</source>
        <translation>類型代碼。顯示的類型：1 到 6、30 到 34、38、39、51 到 53。類型 5 和 6 可以轉換。</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Kind code. Kind 14 has no choice of rigid body or soft cloth.</source>
        <translation>種類代碼。種類 14 不能選擇剛體或柔體布料。</translation>
    </message>
    <message>
        <source>Convert state</source>
        <translation>轉換狀態</translation>
    </message>
    <message>
        <source>3 is at rest; another state of a type 5 or 6 object hides the panel in family A</source>
        <translation>3 表示靜止；類型 5 或 6 的物件處於其他狀態時，系列 A 會隱藏面板</translation>
    </message>
    <message>
        <source>Hides the panel for this object</source>
        <translation>對此物件隱藏面板</translation>
    </message>
    <message>
        <source>Blocked in family A</source>
        <translation>在系列 A 中鎖定</translation>
    </message>
    <message>
        <source>Blocked in family B</source>
        <translation>在系列 B 中鎖定</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>None (0)</source>
        <translation>無 (0)</translation>
    </message>
    <message>
        <source>Weight map (25)</source>
        <translation>權重圖 (25)</translation>
    </message>
    <message>
        <source>Another (7)</source>
        <translation>其他 (7)</translation>
    </message>
    <message>
        <source>Dialog mode</source>
        <translation>對話方塊模式</translation>
    </message>
    <message>
        <source>Material (7)</source>
        <translation>材質 (7)</translation>
    </message>
    <message>
        <source>Another (3)</source>
        <translation>其他 (3)</translation>
    </message>
    <message>
        <source>Pick mode</source>
        <translation>選取模式</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>Events by hand</source>
        <translation>手動事件</translation>
    </message>
    <message>
        <source>Topology (0x2)</source>
        <translation>拓撲 (0x2)</translation>
    </message>
    <message>
        <source>Replaced (0x4)</source>
        <translation>已取代 (0x4)</translation>
    </message>
    <message>
        <source>Material list (0x8)</source>
        <translation>材質清單 (0x8)</translation>
    </message>
    <message>
        <source>Removed (0x40)</source>
        <translation>已移除 (0x40)</translation>
    </message>
    <message>
        <source>Material names (0x100)</source>
        <translation>材質名稱 (0x100)</translation>
    </message>
    <message>
        <source>Sends that the data of the selected objects have changed</source>
        <translation>通知所選物件的資料已變更</translation>
    </message>
    <message>
        <source>Data changed</source>
        <translation>資料變更</translation>
    </message>
    <message>
        <source>Sends this event to the plug-in</source>
        <translation>將此事件傳送給外掛程式</translation>
    </message>
    <message>
        <source>Hierarchy changed</source>
        <translation>階層變更</translation>
    </message>
    <message>
        <source>Undo or redo done</source>
        <translation>復原或重做完成</translation>
    </message>
    <message>
        <source>About to convert</source>
        <translation>即將轉換</translation>
    </message>
    <message>
        <source>Several materials detected</source>
        <translation>偵測到多個材質</translation>
    </message>
    <message>
        <source>Edited image saved</source>
        <translation>編輯的影像已儲存</translation>
    </message>
    <message>
        <source>Failing calls</source>
        <translation>失敗的呼叫</translation>
    </message>
    <message>
        <source>GetSoftClothCollision</source>
        <translation>GetSoftClothCollision</translation>
    </message>
    <message>
        <source>Host operation that is to fail, as the Host Calls view names it</source>
        <translation>要失敗的主程式操作，名稱與主程式呼叫清單相同</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Status that the failing call answers</source>
        <translation>失敗的呼叫傳回的狀態</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Let it fail</source>
        <translation>使其失敗</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>全部恢復</translation>
    </message>
</context>
<context>
    <name>Host::ImageEditor</name>
    <message>
        <source>there is no folder for temporary files</source>
        <translation>沒有用於暫存檔的資料夾</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; for the image editor could not be written: %2.</source>
        <translation>無法寫入供影像編輯器使用的檔案「%1」：%2。</translation>
    </message>
</context>
<context>
    <name>Host::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>系統語言(&amp;S)</translation>
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
        <translation>無權重影像</translation>
    </message>
    <message>
        <source>Legend of the weights</source>
        <translation>權重圖例</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>Scene</source>
        <translation>場景</translation>
    </message>
    <message>
        <source>Host Controls</source>
        <translation>主程式控制</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>The page of the host&apos;s panels that the plug-in asked for last</source>
        <translation>外掛程式最後要求的主程式面板頁</translation>
    </message>
    <message>
        <source>Panel page %1, place %2, option %3</source>
        <translation>面板頁 %1，位置 %2，選項 %3</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
</context>
<context>
    <name>Host::MovingVertices</name>
    <message>
        <source>How many vertices of the chosen material the weight image lets move. More than %L1 are slow to simulate.</source>
        <translation>所選材質的頂點中，權重影像允許移動的數量。超過 %L1 個時模擬會很慢。</translation>
    </message>
    <message>
        <source>%1: %L2 of %L3 vertices move</source>
        <translation>%1：%L3 個頂點中有 %L2 個可移動</translation>
    </message>
</context>
<context>
    <name>Host::PanelActions</name>
    <message>
        <source>&amp;Weight Map Dialog</source>
        <translation>權重圖對話方塊(&amp;W)</translation>
    </message>
    <message>
        <source>Opens or closes the dialog that chooses the material and its weight image</source>
        <translation>開啟或關閉選擇材質及其權重影像的對話方塊</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>柔體布料</translation>
    </message>
</context>
<context>
    <name>Host::PickGuide</name>
    <message>
        <source>Click a material to pick it; Escape ends picking.</source>
        <translation>按一下材質以選取；按 Esc 結束選取。</translation>
    </message>
</context>
<context>
    <name>Host::RecentFiles</name>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清除清單(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Host::SceneFiles</name>
    <message>
        <source>Soft cloth scenes (*.clothscene)</source>
        <translation>柔體布料場景 (*.clothscene)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>新增場景(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>開啟場景(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Import Model…</source>
        <translation>匯入模型(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Recent Files</source>
        <translation>最近的檔案(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Scene</source>
        <translation>儲存場景(&amp;S)</translation>
    </message>
    <message>
        <source>Save Scene &amp;As…</source>
        <translation>另存場景(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>正在讀取 %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import cancelled</source>
        <translation>匯入已取消</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已儲存 %1</translation>
    </message>
    <message>
        <source>Import Model</source>
        <translation>匯入模型</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>模型 (*.%1)</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>開啟場景</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>儲存場景</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未儲存的變更</translation>
    </message>
    <message>
        <source>The scene has changes that are not saved.</source>
        <translation>場景中有未儲存的變更。</translation>
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
        <translation>場景中的物件</translation>
    </message>
</context>
<context>
    <name>Host::UnitDialog</name>
    <message>
        <source>Import Model</source>
        <translation>匯入模型</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say in which unit it was made.</source>
        <translation>「%1」沒有註明所用的單位。</translation>
    </message>
    <message>
        <source>&amp;Unit of the file</source>
        <translation>檔案的單位(&amp;U)</translation>
    </message>
    <message>
        <source>Largest side</source>
        <translation>最長邊</translation>
    </message>
    <message>
        <source>%1 cm in the scene</source>
        <translation>在場景中為 %1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewActions</name>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>縮放至所選(&amp;F)</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>縮放至全部(&amp;A)</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>前視圖(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation>側視圖(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>頂視圖(&amp;T)</translation>
    </message>
    <message>
        <source>Shows the weight images on the model: what is held and what moves freely</source>
        <translation>在模型上顯示權重影像：哪些部分固定，哪些部分自由移動</translation>
    </message>
    <message>
        <source>Show Wei&amp;ghts</source>
        <translation>顯示權重(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Host::ViewTexts</name>
    <message>
        <source>Grid: %1 cm</source>
        <translation>網格：%1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewedScene</name>
    <message>
        <source>Triangles that cannot be shown, because a corner is nowhere: %L1</source>
        <translation>因頂點位置無效而無法顯示的三角形：%L1</translation>
    </message>
    <message>
        <source>Textures that cannot be read: %1</source>
        <translation>無法讀取的貼圖：%1</translation>
    </message>
</context>
<context>
    <name>Host::ViewportWidget</name>
    <message>
        <source>View of the model</source>
        <translation>模型檢視</translation>
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
        <translation>不是 JPEG、BMP、GIF、PNG 或 TGA 影像</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 on a side are too many</source>
        <translation>大小為 %1 x %2 像素，超出了每邊 %3 像素的上限</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 in all are too many</source>
        <translation>大小為 %1 x %2 像素，超出了總計 %3 像素的上限</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>內容不完整</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>已損毀</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>內容為空</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>沒有此檔案</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>不是檔案</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>檔案太大</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2.</source>
        <translation>無法讀取影像「%1」：%2。</translation>
    </message>
</context>
<context>
    <name>ModelText</name>
    <message>
        <source>The model file &quot;%1&quot; could not be read: %2</source>
        <translation>無法讀取模型檔案「%1」：%2</translation>
    </message>
    <message>
        <source>The model in &quot;%1&quot; is too large: %2.</source>
        <translation>「%1」中的模型太大：%2。</translation>
    </message>
    <message>
        <source>There is no model file &quot;%1&quot;.</source>
        <translation>沒有模型檔案「%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>「%1」不是檔案。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is empty.</source>
        <translation>模型檔案「%1」是空的。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is too large.</source>
        <translation>模型檔案「%1」太大。</translation>
    </message>
    <message>
        <source>it is damaged.</source>
        <translation>檔案已損毀。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; holds no surfaces.</source>
        <translation>模型檔案「%1」不包含任何曲面。</translation>
    </message>
</context>
<context>
    <name>PanelHint</name>
    <message>
        <source>The scene is empty. Import a model with File &gt; Import Model, or drop its file on this window.</source>
        <translation>場景是空的。請用「檔案 &gt; 匯入模型」匯入模型，或將其檔案拖放到此視窗。</translation>
    </message>
    <message>
        <source>Click an object in the scene to edit its soft cloth.</source>
        <translation>按一下場景中的物件以編輯其柔體布料。</translation>
    </message>
    <message>
        <source>Several objects are selected. Select one alone to edit its soft cloth.</source>
        <translation>選取了多個物件。請只選取一個以編輯其柔體布料。</translation>
    </message>
    <message>
        <source>Soft cloth needs physics engine 1: see Host Controls.</source>
        <translation>柔體布料需要物理引擎 1：請參閱主程式控制。</translation>
    </message>
    <message>
        <source>There is no soft cloth for this object. Its type, its kind or a block may keep it out: see Host Controls.</source>
        <translation>此物件沒有柔體布料。原因可能是其類型、種類或鎖定：請參閱主程式控制。</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>%1 is not a plug-in for this host.</source>
        <translation>%1 不是此主程式的外掛程式。</translation>
    </message>
    <message>
        <source>%1 does not work in this host.</source>
        <translation>%1 無法在此主程式中執行。</translation>
    </message>
    <message>
        <source>%1 did not start (0x%2).</source>
        <translation>%1 未能啟動 (0x%2)。</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for this host: %2</source>
        <translation>%1 不是此主程式的外掛程式：%2</translation>
    </message>
    <message>
        <source>There is no resource file &quot;%1&quot;.</source>
        <translation>沒有資源檔「%1」。</translation>
    </message>
</context>
<context>
    <name>PreviewText</name>
    <message>
        <source>The preview stopped because the cloth got out of control. Reset starts it again.</source>
        <translation>布料失去控制，預覽已停止。重設可重新開始。</translation>
    </message>
</context>
<context>
    <name>Scene</name>
    <message>
        <source>Several values</source>
        <translation>多個值</translation>
    </message>
</context>
<context>
    <name>SceneText</name>
    <message>
        <source>is named a second time</source>
        <translation>被重複指定</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>為空</translation>
    </message>
    <message>
        <source>is both linked and embedded</source>
        <translation>既是連結又是嵌入</translation>
    </message>
    <message>
        <source>is damaged: its check sum does not fit</source>
        <translation>已損毀：總和檢查碼不符</translation>
    </message>
    <message>
        <source>does not hold as many items as it says</source>
        <translation>包含的項目數與標明的不符</translation>
    </message>
    <message>
        <source>cannot be unpacked</source>
        <translation>無法解壓縮</translation>
    </message>
    <message>
        <source>its values are nested more than %1 levels deep</source>
        <translation>值的巢狀超過 %1 層</translation>
    </message>
    <message>
        <source>it has more than %1 values</source>
        <translation>值的數量超過 %1 個</translation>
    </message>
    <message>
        <source>must be a group of values</source>
        <translation>必須是一組值</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>must be a list</source>
        <translation>必須是清單</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>必須是真 (true) 或假 (false)</translation>
    </message>
    <message>
        <source>must be text</source>
        <translation>必須是文字</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>必須是數字</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>必須是 %1 到 %2 之間的整數</translation>
    </message>
    <message>
        <source>is not valid base64</source>
        <translation>不是有效的 base64</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The scene could not be saved as &quot;%1&quot;: %2.</source>
        <translation>無法將場景儲存為「%1」：%2。</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; could not be loaded: %2.</source>
        <translation>無法載入場景檔案「%1」：%2。</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>缺少名稱</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>不是檔案</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>場景太大</translation>
    </message>
    <message>
        <source>There is no scene file &quot;%1&quot;.</source>
        <translation>沒有場景檔案「%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>「%1」不是檔案。</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; is empty.</source>
        <translation>場景檔案「%1」是空的。</translation>
    </message>
    <message>
        <source>it is damaged or no scene file at all (%1 at byte %2)</source>
        <translation>檔案已損毀或不是場景檔案（第 %2 位元組：%1）</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>must be a list of 4 numbers</source>
        <translation>必須是 4 個數字的清單</translation>
    </message>
    <message>
        <source>is %1, which is in use already</source>
        <translation>是 %1，已被使用</translation>
    </message>
    <message>
        <source>has a texture already</source>
        <translation>已有貼圖</translation>
    </message>
    <message>
        <source>must hold three indices per triangle</source>
        <translation>每個三角形必須有三個索引</translation>
    </message>
    <message>
        <source>names a vertex that the mesh does not have</source>
        <translation>指向網格中不存在的頂點</translation>
    </message>
    <message>
        <source>names a material that the object does not have</source>
        <translation>指向物件中不存在的材質</translation>
    </message>
    <message>
        <source>must hold one item per vertex or none</source>
        <translation>必須每個頂點一項，或者為空</translation>
    </message>
    <message>
        <source>has a slot on this mesh already</source>
        <translation>在此網格上已有插槽</translation>
    </message>
    <message>
        <source>is no object of the scene</source>
        <translation>不是場景中的物件</translation>
    </message>
    <message>
        <source>changes something that the scene does not have</source>
        <translation>變更了場景中不存在的內容</translation>
    </message>
    <message>
        <source>it is no scene of this application</source>
        <translation>不是此應用程式的場景</translation>
    </message>
    <message>
        <source>it was written by a newer version of this application</source>
        <translation>由此應用程式的較新版本寫入</translation>
    </message>
    <message>
        <source>it has %1 meshes, and more than %2 are too many</source>
        <translation>有 %1 個網格，超出了 %2 個的上限</translation>
    </message>
    <message>
        <source>it has %1 materials, and more than %2 are too many</source>
        <translation>有 %1 個材質，超出了 %2 個的上限</translation>
    </message>
    <message>
        <source>it has %1 vertices, and more than %2 are too many</source>
        <translation>有 %1 個頂點，超出了 %2 個的上限</translation>
    </message>
    <message>
        <source>it has %1 triangles, and more than %2 are too many</source>
        <translation>有 %1 個三角形，超出了 %2 個的上限</translation>
    </message>
    <message>
        <source>must be a whole number in quotation marks</source>
        <translation>必須是加引號的整數</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>超出範圍</translation>
    </message>
    <message>
        <source>must be a list of %1 numbers</source>
        <translation>必須是 %1 個數字的清單</translation>
    </message>
    <message>
        <source>must be %1 bytes</source>
        <translation>必須是 %1 位元組</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>Millimetre</source>
        <translation>公釐</translation>
    </message>
    <message>
        <source>Centimetre</source>
        <translation>公分</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>英吋</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>公尺</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A stand-in host for the soft cloth physics panel.</source>
        <translation>柔體布料物理面板的替代主程式。</translation>
    </message>
    <message>
        <source>Model or scene file; the demo character without.</source>
        <translation>模型或場景檔案；不指定則為示範角色。</translation>
    </message>
    <message>
        <source>Application family: a, b or none.</source>
        <translation>應用程式系列：a、b 或 none。</translation>
    </message>
    <message>
        <source>The plug-in library to load.</source>
        <translation>要載入的外掛程式庫。</translation>
    </message>
    <message>
        <source>Run the main job unattended and write pictures into this folder.</source>
        <translation>無人值守地執行主要工作，並將圖片寫入此資料夾。</translation>
    </message>
    <message>
        <source>Program, with its options, that opens images in place of the one chosen.</source>
        <translation>代替所選程式開啟影像的程式及其選項。</translation>
    </message>
    <message>
        <source>Language in place of the one chosen, for example de or zh_TW.</source>
        <translation>代替所選語言的語言，例如 de 或 zh_TW。</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;, but these: %2.</source>
        <translation>沒有語言「%1」，只有：%2。</translation>
    </message>
    <message>
        <source>There is no application family &quot;%1&quot;, but these: a, b, none.</source>
        <translation>沒有應用程式系列「%1」，但有這些：a、b、none。</translation>
    </message>
    <message>
        <source>Only one model can be opened; &quot;%1&quot; is one too many.</source>
        <translation>只能開啟一個模型；「%1」是多餘的。</translation>
    </message>
    <message>
        <source>Unit of a model whose file does not name one, in place of asking: %1.</source>
        <translation>檔案未註明單位的模型所用的單位，用來代替詢問：%1。</translation>
    </message>
    <message>
        <source>There is no unit &quot;%1&quot;, but these: %2.</source>
        <translation>沒有單位「%1」，只有：%2。</translation>
    </message>
</context>
</TS>
