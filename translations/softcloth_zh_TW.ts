<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>LensFlare section hot key</name>
    <message>
        <source>[Hot Key] Physics</source>
        <translation>[熱鍵] 物理</translation>
    </message>
</context>
<context>
    <name>MV::CEditedMaterial</name>
    <message>
        <source>There is no material to edit</source>
        <translation>沒有可編輯的材質</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothMaterialDlg</name>
    <message>
        <source>InValid File Path.</source>
        <translation>檔案路徑無效。</translation>
    </message>
    <message>
        <source>File is Unreadable.</source>
        <translation>無法讀取檔案。</translation>
    </message>
    <message>
        <source>The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. </source>
        <translation>產生的布料網格超過了 20,000 個頂點的上限。請嘗試其他有效的影像。 </translation>
    </message>
    <message>
        <source>This image would create a soft cloth without any physics effect,
 because all the vertices of cloth mesh were set as zero weighting
( black color ). Please modify the gray map or load other valid images.</source>
        <translation>此影像產生的柔體布料不會有任何物理效果，
 因為布料網格的所有頂點權重都是零
(黑色)。請修改灰階圖，或載入其他有效的影像。</translation>
    </message>
    <message>
        <source>Failed to save weight image.</source>
        <translation>無法儲存權重影像。</translation>
    </message>
    <message>
        <source>Failed to launch image editor.</source>
        <translation>無法啟動影像編輯器。</translation>
    </message>
    <message>
        <source>Diffuse Uv Texture does not exist.</source>
        <translation>漫射 UV 貼圖不存在。</translation>
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
        <translation>網格</translation>
    </message>
    <message>
        <source>Material Name</source>
        <comment>MVPhysicsSoftClothSection Material Table �ĤT���W��</comment>
        <translation>材質名稱</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothPresetSection</name>
    <message>
        <source>File is Unreadable.</source>
        <translation>無法讀取檔案。</translation>
    </message>
    <message>
        <source>InValid File Path.</source>
        <translation>檔案路徑無效。</translation>
    </message>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>載入柔體布料自訂設定檔</translation>
    </message>
    <message>
        <source>INI Files (*.ini)</source>
        <translation>INI 檔案 (*.ini)</translation>
    </message>
    <message>
        <source>Save Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>儲存柔體布料自訂設定檔</translation>
    </message>
    <message>
        <source>File is Unwritable.</source>
        <translation>無法寫入檔案。</translation>
    </message>
    <message>
        <source>Load Soft Ini Profile</source>
        <comment>Open File title</comment>
        <translation>載入柔體布料 INI 設定檔</translation>
    </message>
    <message>
        <source>[Hot Key] Modify</source>
        <comment>Modify Panel hot key</comment>
        <translation>[熱鍵] 修改</translation>
    </message>
    <message>
        <source>[Hot Key] Physics</source>
        <comment>LensFlare section hot key</comment>
        <translation>[熱鍵] 物理</translation>
    </message>
    <message>
        <source>This object does not have any valid material enabling to create soft cloth.</source>
        <translation>此物件沒有可建立柔體布料的有效材質。</translation>
    </message>
    <message>
        <source>This object has multiple materials.
 Please select a material and load a gray map image.</source>
        <translation>此物件有多個材質。
 請選擇一個材質並載入灰階影像。</translation>
    </message>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <comment>Message Title</comment>
        <translation>[柔體布料物理] Movira 6</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothWindSection</name>
    <message>
        <source>from %1</source>
        <translation>從 %1</translation>
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
        <translation>[柔體布料物理] Movira 6</translation>
    </message>
</context>
<context>
    <name>Modify Panel hot key</name>
    <message>
        <source>[Hot Key] Modify</source>
        <translation>[熱鍵] 修改</translation>
    </message>
</context>
<context>
    <name>Open File title</name>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <translation>載入柔體布料自訂設定檔</translation>
    </message>
</context>
<context>
    <name>SoftClothCollision</name>
    <message>
        <source>Fold or unfold the collision settings</source>
        <translation>收合或展開碰撞設定</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>碰撞</translation>
    </message>
    <message>
        <source>The cloth is stopped by rigid bodies instead of passing through them</source>
        <translation>布料會被剛體擋住，不會穿過剛體</translation>
    </message>
    <message>
        <source>Soft vs. Rigid Collision</source>
        <translation>柔體與剛體碰撞</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units</source>
        <translation>布料與剛體保持的距離 (場景單位)</translation>
    </message>
    <message>
        <source>&amp;Collision Margin</source>
        <translation>碰撞邊界(&amp;C)</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units. A larger margin keeps fast cloth from slipping through.</source>
        <translation>布料與剛體保持的距離 (場景單位)。較大的邊界可避免快速移動的布料穿透。</translation>
    </message>
    <message>
        <source>Rigid collision margin</source>
        <translation>剛體碰撞邊界</translation>
    </message>
    <message>
        <source>Folds of the cloth push each other apart instead of passing through; costs simulation time</source>
        <translation>布料的皺褶會互相推開而不會穿透；會增加模擬時間</translation>
    </message>
    <message>
        <source>Self Collision</source>
        <translation>自我碰撞</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units</source>
        <translation>布料皺褶之間保持的距離 (場景單位)</translation>
    </message>
    <message>
        <source>Self Collisio&amp;n Margin</source>
        <translation>自我碰撞邊界(&amp;N)</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units. Too large a margin makes the cloth look thick.</source>
        <translation>布料皺褶之間保持的距離 (場景單位)。邊界過大會使布料顯得很厚。</translation>
    </message>
    <message>
        <source>Self collision margin</source>
        <translation>自我碰撞邊界</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialDlg</name>
    <message>
        <source>Soft Cloth Weight Map</source>
        <translation>柔體布料權重圖</translation>
    </message>
    <message>
        <source>&amp;Materials</source>
        <translation>材質(&amp;M)</translation>
    </message>
    <message>
        <source>Materials of the object that take part in the soft cloth. The chosen one is edited here and in the panel.</source>
        <translation>參與柔體布料的物件材質。選取的材質可在此處與面板中編輯。</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>材質</translation>
    </message>
    <message>
        <source>Choose a material by clicking it in the viewport; Escape ends picking</source>
        <translation>在視埠中按一下以選取材質；按 Esc 結束選取</translation>
    </message>
    <message>
        <source>&amp;Pick Material</source>
        <translation>選取材質(&amp;P)</translation>
    </message>
    <message>
        <source>Decide in a table which materials take part in the soft cloth</source>
        <translation>在表格中決定哪些材質參與柔體布料</translation>
    </message>
    <message>
        <source>Material &amp;Table...</source>
        <translation>材質表(&amp;T)...</translation>
    </message>
    <message>
        <source>Weight Image</source>
        <translation>權重影像</translation>
    </message>
    <message>
        <source>Diffuse texture of the material</source>
        <translation>材質的漫射貼圖</translation>
    </message>
    <message>
        <source>Diffuse texture</source>
        <translation>漫射貼圖</translation>
    </message>
    <message>
        <source>&amp;Diffuse</source>
        <translation>漫射(&amp;D)</translation>
    </message>
    <message>
        <source>Opacity texture of the material</source>
        <translation>材質的不透明度貼圖</translation>
    </message>
    <message>
        <source>Opacity texture</source>
        <translation>不透明度貼圖</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>不透明度(&amp;O)</translation>
    </message>
    <message>
        <source>Weight image of the material: black holds the vertices, lighter grays let them move. Drop an image file here, or double-click to choose one.</source>
        <translation>材質的權重影像：黑色固定頂點，越亮的灰色越能活動。將影像檔拖放到此處，或按兩下以選擇檔案。</translation>
    </message>
    <message>
        <source>Weight image</source>
        <translation>權重影像</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>權重(&amp;W)</translation>
    </message>
    <message>
        <source>The chosen texture, enlarged</source>
        <translation>選取的貼圖 (放大)</translation>
    </message>
    <message>
        <source>Preview of the chosen texture</source>
        <translation>選取貼圖的預覽</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>File that the weight image is linked to</source>
        <translation>權重影像連結的檔案</translation>
    </message>
    <message>
        <source>File of the weight image</source>
        <translation>權重影像的檔案</translation>
    </message>
    <message>
        <source>No linked file</source>
        <translation>沒有連結的檔案</translation>
    </message>
    <message>
        <source>Show the folder of the weight image&apos;s file</source>
        <translation>顯示權重影像檔案所在的資料夾</translation>
    </message>
    <message>
        <source>Open Folde&amp;r</source>
        <translation>開啟資料夾(&amp;R)</translation>
    </message>
    <message>
        <source>Load an image file as the weight image</source>
        <translation>載入影像檔作為權重影像</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>載入(&amp;L)...</translation>
    </message>
    <message>
        <source>Save the weight image to a file</source>
        <translation>將權重影像儲存到檔案</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>儲存(&amp;S)...</translation>
    </message>
    <message>
        <source>Take the weight image away from the material</source>
        <translation>從材質移除權重影像</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Keep the weight image inside the material instead of linking its file</source>
        <translation>將權重影像保存在材質內，而不連結其檔案</translation>
    </message>
    <message>
        <source>&amp;Embed</source>
        <translation>嵌入(&amp;E)</translation>
    </message>
    <message>
        <source>Edit the chosen texture in the external image editor</source>
        <translation>在外部影像編輯器中編輯選取的貼圖</translation>
    </message>
    <message>
        <source>Ed&amp;it</source>
        <translation>編輯(&amp;I)</translation>
    </message>
    <message>
        <source>Open the UV layout over the diffuse texture in the external image editor</source>
        <translation>在外部影像編輯器中開啟疊在漫射貼圖上的 UV 配置</translation>
    </message>
    <message>
        <source>&amp;UV Layout</source>
        <translation>UV 配置(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>亮度(&amp;B)</translation>
    </message>
    <message>
        <source>Brightness of the weight image, -100 to 100</source>
        <translation>權重影像的亮度 (-100 到 100)</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>對比(&amp;C)</translation>
    </message>
    <message>
        <source>Contrast of the weight image, -100 to 100</source>
        <translation>權重影像的對比 (-100 到 100)</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>對比</translation>
    </message>
    <message>
        <source>Stop Picking</source>
        <translation>停止選取</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialTable</name>
    <message>
        <source>Material Table</source>
        <translation>材質表</translation>
    </message>
    <message>
        <source>&amp;Materials that take part in the soft cloth:</source>
        <translation>參與柔體布料的材質(&amp;M)：</translation>
    </message>
    <message>
        <source>Ticked materials take part in the soft cloth</source>
        <translation>勾選的材質參與柔體布料</translation>
    </message>
    <message>
        <source>Materials of the object</source>
        <translation>物件的材質</translation>
    </message>
    <message>
        <source>Apply the ticks to the materials</source>
        <translation>將勾選套用到材質</translation>
    </message>
    <message>
        <source>C&amp;onfirm</source>
        <translation>確認(&amp;O)</translation>
    </message>
    <message>
        <source>Leave the materials as they are</source>
        <translation>讓材質保持不變</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>SoftClothPreset</name>
    <message>
        <source>Fold or unfold the presets</source>
        <translation>收合或展開預設</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the selected object on or off</source>
        <translation>開啟或關閉所選物件的柔體布料物理</translation>
    </message>
    <message>
        <source>Activate Ph&amp;ysics</source>
        <translation>啟用物理(&amp;Y)</translation>
    </message>
    <message>
        <source>Turns the selected object into a rigid body</source>
        <translation>將所選物件變成剛體</translation>
    </message>
    <message>
        <source>Rigid Body</source>
        <translation>剛體</translation>
    </message>
    <message>
        <source>The selected object is soft cloth</source>
        <translation>所選物件是柔體布料</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>柔體布料</translation>
    </message>
    <message>
        <source>The cloth falls as the scene&apos;s gravity pulls; otherwise it does not fall</source>
        <translation>布料依場景重力落下；否則不會落下</translation>
    </message>
    <message>
        <source>Use &amp;World Gravity</source>
        <translation>使用世界重力(&amp;W)</translation>
    </message>
    <message>
        <source>Edits go to all materials of the object instead of the selected one only</source>
        <translation>編輯會套用到物件的所有材質，而不只是所選材質</translation>
    </message>
    <message>
        <source>Affect A&amp;ll Materials</source>
        <translation>影響所有材質(&amp;L)</translation>
    </message>
    <message>
        <source>A gray-scale image that says which parts follow the simulation: black stays, white moves</source>
        <translation>表示哪些部分跟隨模擬的灰階影像：黑色不動，白色活動</translation>
    </message>
    <message>
        <source>Weight &amp;Map</source>
        <translation>權重圖(&amp;M)</translation>
    </message>
    <message>
        <source>Opens or closes the weight maps of the object&apos;s materials</source>
        <translation>開啟或關閉物件各材質的權重圖</translation>
    </message>
    <message>
        <source>Paint Weights…</source>
        <translation>繪製權重…</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>布料</translation>
    </message>
    <message>
        <source>Double-click a preset or press Return to apply its values to the selected material</source>
        <translation>按兩下預設或按 Enter 鍵，將其數值套用到所選材質</translation>
    </message>
    <message>
        <source>Cloth presets</source>
        <translation>布料預設</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>棉布</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>丹寧布</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>皮革</translation>
    </message>
    <message>
        <source>Silk</source>
        <translation>絲綢</translation>
    </message>
    <message>
        <source>Rubber</source>
        <translation>橡膠</translation>
    </message>
    <message>
        <source>Wool</source>
        <translation>羊毛</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>亞麻</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>天鵝絨</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>頭髮</translation>
    </message>
    <message>
        <source>Hair presets</source>
        <translation>頭髮預設</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短髮</translation>
    </message>
    <message>
        <source>Bob</source>
        <translation>鮑伯頭</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>長髮</translation>
    </message>
    <message>
        <source>Curly</source>
        <translation>捲髮</translation>
    </message>
    <message>
        <source>Ponytail</source>
        <translation>馬尾</translation>
    </message>
    <message>
        <source>Braid</source>
        <translation>辮子</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>風</translation>
    </message>
    <message>
        <source>Wind presets</source>
        <translation>風預設</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>無風</translation>
    </message>
    <message>
        <source>Breeze</source>
        <translation>微風</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>大風</translation>
    </message>
    <message>
        <source>Gusts</source>
        <translation>陣風</translation>
    </message>
    <message>
        <source>Whirl</source>
        <translation>旋風</translation>
    </message>
    <message>
        <source>Applies the values of a custom profile</source>
        <translation>套用自訂設定檔的數值</translation>
    </message>
    <message>
        <source>Load Profile…</source>
        <translation>載入設定檔…</translation>
    </message>
    <message>
        <source>Saves the values that the panel shows as a custom profile</source>
        <translation>將面板中的數值儲存為自訂設定檔</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>儲存設定檔…</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>穩定風</translation>
    </message>
</context>
<context>
    <name>SoftClothProperty</name>
    <message>
        <source>Fold or unfold the property settings</source>
        <translation>收合或展開屬性設定</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>屬性</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms</source>
        <translation>布料的質量 (公斤)</translation>
    </message>
    <message>
        <source>M&amp;ass</source>
        <translation>質量(&amp;A)</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms. How hard it is to push the cloth around.</source>
        <translation>布料的質量 (公斤)。數值越大，布料越難推動。</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>質量</translation>
    </message>
    <message>
        <source> kg</source>
        <translation> kg</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz</source>
        <translation>每秒解算布料的次數 (赫茲)</translation>
    </message>
    <message>
        <source>Solver Fre&amp;quency</source>
        <translation>解算頻率(&amp;Q)</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz. More makes it steadier and stiffer, and costs simulation time.</source>
        <translation>每秒解算布料的次數 (赫茲)。數值越大，布料越穩定、越硬，但會增加模擬時間。</translation>
    </message>
    <message>
        <source>Solver Frequency</source>
        <translation>解算頻率</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1</source>
        <translation>布料附著在接觸物上的程度 (0 到 1)</translation>
    </message>
    <message>
        <source>F&amp;riction</source>
        <translation>摩擦力(&amp;R)</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1. 0 slides freely, 1 hardly slides at all.</source>
        <translation>布料附著在接觸物上的程度 (0 到 1)。0 時自由滑動，1 時幾乎不滑動。</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦力</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1</source>
        <translation>布料運動衰減的快慢 (0 到 1)</translation>
    </message>
    <message>
        <source>&amp;Damping</source>
        <translation>阻尼(&amp;D)</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1. 0 lets it swing on, 1 calms it at once.</source>
        <translation>布料運動衰減的快慢 (0 到 1)。0 時持續擺動，1 時立即靜止。</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>阻尼</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1</source>
        <translation>空氣阻擋布料的程度 (0 到 1)</translation>
    </message>
    <message>
        <source>Dra&amp;g</source>
        <translation>空氣阻力(&amp;G)</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1. 0 cuts through the air, 1 is carried along with it.</source>
        <translation>空氣阻擋布料的程度 (0 到 1)。0 時穿過空氣，1 時隨空氣一起移動。</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>空氣阻力</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest</source>
        <translation>布料可離開固定處的距離，以靜止長度的倍數表示</translation>
    </message>
    <message>
        <source>Tet&amp;her Limit</source>
        <translation>繫繩限制(&amp;H)</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest. At 1 it never gets longer than it was modelled.</source>
        <translation>布料可離開固定處的距離，以靜止長度的倍數表示。為 1 時，布料不會比建模時更長。</translation>
    </message>
    <message>
        <source>Tether Limit</source>
        <translation>繫繩限制</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101</source>
        <translation>繫繩限制的嚴格程度 (1 到 101)</translation>
    </message>
    <message>
        <source>&amp;Tether Stiffness</source>
        <translation>繫繩剛性(&amp;T)</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101. 1 is the strictest, 101 lets the cloth pass the limit.</source>
        <translation>繫繩限制的嚴格程度 (1 到 101)。1 最嚴格，101 時布料可以超出限制。</translation>
    </message>
    <message>
        <source>Tether Stiffness</source>
        <translation>繫繩剛性</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent</source>
        <translation>減少的拉伸剛性 (百分比)</translation>
    </message>
    <message>
        <source>&amp;Stiffness</source>
        <translation>剛性(&amp;S)</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent. At 0 % the cloth keeps its size, at 100 % it stretches freely; below 0 % it is stiffer still.</source>
        <translation>減少的拉伸剛性 (百分比)。0 % 時布料保持大小，100 % 時自由拉伸；低於 0 % 時更硬。</translation>
    </message>
    <message>
        <source>Stiffness</source>
        <translation>剛性</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent</source>
        <translation>減少的彎曲剛性 (百分比)</translation>
    </message>
    <message>
        <source>&amp;Bending</source>
        <translation>彎曲(&amp;B)</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent. At 0 % the cloth hardly folds, at 100 % it folds freely; below 0 % it is stiffer still.</source>
        <translation>減少的彎曲剛性 (百分比)。0 % 時布料幾乎不摺疊，100 % 時自由摺疊；低於 0 % 時更硬。</translation>
    </message>
    <message>
        <source>Bending</source>
        <translation>彎曲</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths</source>
        <translation>物件的運動傳給布料的程度 (十分之一)</translation>
    </message>
    <message>
        <source>&amp;Inertia Scale</source>
        <translation>慣性縮放(&amp;I)</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths. At 0 nothing reaches it, at 10 all, at 20 twice as much; applies to straight movement, turning and centrifugal force alike.</source>
        <translation>物件的運動傳給布料的程度 (十分之一)。0 時完全不傳，10 時全部，20 時加倍；同樣適用於直線運動、旋轉與離心力。</translation>
    </message>
    <message>
        <source>Inertia Scale</source>
        <translation>慣性縮放</translation>
    </message>
</context>
<context>
    <name>SoftClothWindSetting</name>
    <message>
        <source>Fold or unfold the wind settings</source>
        <translation>收合或展開風設定</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>風</translation>
    </message>
    <message>
        <source>Steady push of the wind along each axis, in scene units per second squared</source>
        <translation>風沿各軸的持續推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>External Acceleration</source>
        <translation>外部加速度</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared</source>
        <translation>風沿 X 軸的持續推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared. A negative number blows the other way.</source>
        <translation>風沿 X 軸的持續推力 (場景單位/秒²)。負數表示反方向吹。</translation>
    </message>
    <message>
        <source>External acceleration X</source>
        <translation>外部加速度 X</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared</source>
        <translation>風沿 Y 軸的持續推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared. A negative number blows the other way.</source>
        <translation>風沿 Y 軸的持續推力 (場景單位/秒²)。負數表示反方向吹。</translation>
    </message>
    <message>
        <source>External acceleration Y</source>
        <translation>外部加速度 Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared</source>
        <translation>風沿 Z 軸的持續推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared. A negative number blows the other way.</source>
        <translation>風沿 Z 軸的持續推力 (場景單位/秒²)。負數表示反方向吹。</translation>
    </message>
    <message>
        <source>External acceleration Z</source>
        <translation>外部加速度 Z</translation>
    </message>
    <message>
        <source>Largest random push of the wind along each axis, in scene units per second squared</source>
        <translation>風沿各軸的最大隨機推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>Random Acceleration</source>
        <translation>隨機加速度</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared</source>
        <translation>風沿 X 軸的最大隨機推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>風沿 X 軸的最大隨機推力 (場景單位/秒²)。隨風頻率時強時弱。</translation>
    </message>
    <message>
        <source>Random acceleration X</source>
        <translation>隨機加速度 X</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared</source>
        <translation>風沿 Y 軸的最大隨機推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>風沿 Y 軸的最大隨機推力 (場景單位/秒²)。隨風頻率時強時弱。</translation>
    </message>
    <message>
        <source>Random acceleration Y</source>
        <translation>隨機加速度 Y</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared</source>
        <translation>風沿 Z 軸的最大隨機推力 (場景單位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>風沿 Z 軸的最大隨機推力 (場景單位/秒²)。隨風頻率時強時弱。</translation>
    </message>
    <message>
        <source>Random acceleration Z</source>
        <translation>隨機加速度 Z</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz</source>
        <translation>隨機推力變化的頻率 (赫茲)</translation>
    </message>
    <message>
        <source>Wind Freq&amp;uency</source>
        <translation>風頻率(&amp;U)</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz. 0 keeps it as it is.</source>
        <translation>隨機推力變化的頻率 (赫茲)。0 時保持不變。</translation>
    </message>
    <message>
        <source>Wind Frequency</source>
        <translation>風頻率</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles</source>
        <translation>隨機推力的變化幅度：乘以兩個滑桿把手之間的隨機數</translation>
    </message>
    <message>
        <source>Rand&amp;om Factor</source>
        <translation>隨機係數(&amp;O)</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles. Drag a handle or use the arrow keys to move it; the handles keep their order.</source>
        <translation>隨機推力的變化幅度：乘以兩個滑桿把手之間的隨機數。拖曳把手或使用方向鍵可移動它；把手的先後順序不變。</translation>
    </message>
    <message>
        <source>Random Factor</source>
        <translation>隨機係數</translation>
    </message>
    <message>
        <source>Smallest factor</source>
        <translation>最小係數</translation>
    </message>
    <message>
        <source>from 0</source>
        <translation>從 0</translation>
    </message>
    <message>
        <source>Largest factor</source>
        <translation>最大係數</translation>
    </message>
    <message>
        <source>to 10</source>
        <translation>到 10</translation>
    </message>
</context>
</TS>
