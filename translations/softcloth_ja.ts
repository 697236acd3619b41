<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>LensFlare section hot key</name>
    <message>
        <source>[Hot Key] Physics</source>
        <translation>[ホットキー] 物理</translation>
    </message>
</context>
<context>
    <name>MV::CEditedMaterial</name>
    <message>
        <source>There is no material to edit</source>
        <translation>編集するマテリアルはありません</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothMaterialDlg</name>
    <message>
        <source>InValid File Path.</source>
        <translation>ファイルのパスが無効です。</translation>
    </message>
    <message>
        <source>File is Unreadable.</source>
        <translation>ファイルを読み込めません。</translation>
    </message>
    <message>
        <source>The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. </source>
        <translation>生成されるクロスメッシュが上限の 20,000 頂点を超えています。別の有効な画像を試してください。 </translation>
    </message>
    <message>
        <source>This image would create a soft cloth without any physics effect,
 because all the vertices of cloth mesh were set as zero weighting
( black color ). Please modify the gray map or load other valid images.</source>
        <translation>この画像では物理効果のないソフトクロスになります。
 クロスメッシュの頂点のウェイトがすべてゼロ
(黒)になるためです。グレーマップを修正するか、別の有効な画像を読み込んでください。</translation>
    </message>
    <message>
        <source>Failed to save weight image.</source>
        <translation>ウェイト画像を保存できませんでした。</translation>
    </message>
    <message>
        <source>Failed to launch image editor.</source>
        <translation>画像エディターを起動できませんでした。</translation>
    </message>
    <message>
        <source>Diffuse Uv Texture does not exist.</source>
        <translation>ディフューズの UV テクスチャがありません。</translation>
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
        <translation>メッシュ</translation>
    </message>
    <message>
        <source>Material Name</source>
        <comment>MVPhysicsSoftClothSection Material Table �ĤT���W��</comment>
        <translation>マテリアル名</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothPresetSection</name>
    <message>
        <source>File is Unreadable.</source>
        <translation>ファイルを読み込めません。</translation>
    </message>
    <message>
        <source>InValid File Path.</source>
        <translation>ファイルのパスが無効です。</translation>
    </message>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>ソフトクロスのカスタムプロファイルを読み込む</translation>
    </message>
    <message>
        <source>INI Files (*.ini)</source>
        <translation>INI ファイル (*.ini)</translation>
    </message>
    <message>
        <source>Save Soft Cloth Custom Profile</source>
        <comment>Open File title</comment>
        <translation>ソフトクロスのカスタムプロファイルを保存</translation>
    </message>
    <message>
        <source>File is Unwritable.</source>
        <translation>ファイルに書き込めません。</translation>
    </message>
    <message>
        <source>Load Soft Ini Profile</source>
        <comment>Open File title</comment>
        <translation>ソフトクロスの INI プロファイルを読み込む</translation>
    </message>
    <message>
        <source>[Hot Key] Modify</source>
        <comment>Modify Panel hot key</comment>
        <translation>[ホットキー] 修正</translation>
    </message>
    <message>
        <source>[Hot Key] Physics</source>
        <comment>LensFlare section hot key</comment>
        <translation>[ホットキー] 物理</translation>
    </message>
    <message>
        <source>This object does not have any valid material enabling to create soft cloth.</source>
        <translation>このオブジェクトには、ソフトクロスにできる有効なマテリアルがありません。</translation>
    </message>
    <message>
        <source>This object has multiple materials.
 Please select a material and load a gray map image.</source>
        <translation>このオブジェクトには複数のマテリアルがあります。
 マテリアルを選択してグレーマップ画像を読み込んでください。</translation>
    </message>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <comment>Message Title</comment>
        <translation>[ソフトクロス物理] Movira 6</translation>
    </message>
</context>
<context>
    <name>MV::CSoftClothWindSection</name>
    <message>
        <source>from %1</source>
        <translation>最小 %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>最大 %1</translation>
    </message>
</context>
<context>
    <name>Message Title</name>
    <message>
        <source>[Physics Soft Cloth Section] Movira 6</source>
        <translation>[ソフトクロス物理] Movira 6</translation>
    </message>
</context>
<context>
    <name>Modify Panel hot key</name>
    <message>
        <source>[Hot Key] Modify</source>
        <translation>[ホットキー] 修正</translation>
    </message>
</context>
<context>
    <name>Open File title</name>
    <message>
        <source>Load Soft Cloth Custom Profile</source>
        <translation>ソフトクロスのカスタムプロファイルを読み込む</translation>
    </message>
</context>
<context>
    <name>SoftClothCollision</name>
    <message>
        <source>Fold or unfold the collision settings</source>
        <translation>コリジョン設定の折りたたみと展開</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>コリジョン</translation>
    </message>
    <message>
        <source>The cloth is stopped by rigid bodies instead of passing through them</source>
        <translation>クロスが剛体を通り抜けず、剛体で止まるようにします</translation>
    </message>
    <message>
        <source>Soft vs. Rigid Collision</source>
        <translation>ソフトと剛体のコリジョン</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units</source>
        <translation>クロスが剛体から保つ距離 (シーン単位)</translation>
    </message>
    <message>
        <source>&amp;Collision Margin</source>
        <translation>コリジョンマージン(&amp;C)</translation>
    </message>
    <message>
        <source>Distance that the cloth keeps from rigid bodies, in scene units. A larger margin keeps fast cloth from slipping through.</source>
        <translation>クロスが剛体から保つ距離 (シーン単位)。マージンを大きくすると、速く動くクロスのすり抜けを防げます。</translation>
    </message>
    <message>
        <source>Rigid collision margin</source>
        <translation>剛体コリジョンマージン</translation>
    </message>
    <message>
        <source>Folds of the cloth push each other apart instead of passing through; costs simulation time</source>
        <translation>クロスのひだが通り抜けずに押し合います。シミュレーション時間がかかります</translation>
    </message>
    <message>
        <source>Self Collision</source>
        <translation>セルフコリジョン</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units</source>
        <translation>クロスのひだ同士が保つ距離 (シーン単位)</translation>
    </message>
    <message>
        <source>Self Collisio&amp;n Margin</source>
        <translation>セルフコリジョンマージン(&amp;N)</translation>
    </message>
    <message>
        <source>Distance that folds of the cloth keep from each other, in scene units. Too large a margin makes the cloth look thick.</source>
        <translation>クロスのひだ同士が保つ距離 (シーン単位)。マージンが大きすぎるとクロスが厚く見えます。</translation>
    </message>
    <message>
        <source>Self collision margin</source>
        <translation>セルフコリジョンマージン</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialDlg</name>
    <message>
        <source>Soft Cloth Weight Map</source>
        <translation>ソフトクロスのウェイトマップ</translation>
    </message>
    <message>
        <source>&amp;Materials</source>
        <translation>マテリアル(&amp;M)</translation>
    </message>
    <message>
        <source>Materials of the object that take part in the soft cloth. The chosen one is edited here and in the panel.</source>
        <translation>ソフトクロスに使うオブジェクトのマテリアル。選択したものをここで、またパネルで編集します。</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>マテリアル</translation>
    </message>
    <message>
        <source>Choose a material by clicking it in the viewport; Escape ends picking</source>
        <translation>ビューポートでクリックしてマテリアルを選択します。Esc でピックを終了します</translation>
    </message>
    <message>
        <source>&amp;Pick Material</source>
        <translation>マテリアルをピック(&amp;P)</translation>
    </message>
    <message>
        <source>Decide in a table which materials take part in the soft cloth</source>
        <translation>ソフトクロスに使うマテリアルを表で決めます</translation>
    </message>
    <message>
        <source>Material &amp;Table...</source>
        <translation>マテリアル表(&amp;T)...</translation>
    </message>
    <message>
        <source>Weight Image</source>
        <translation>ウェイト画像</translation>
    </message>
    <message>
        <source>Diffuse texture of the material</source>
        <translation>マテリアルのディフューズテクスチャ</translation>
    </message>
    <message>
        <source>Diffuse texture</source>
        <translation>ディフューズテクスチャ</translation>
    </message>
    <message>
        <source>&amp;Diffuse</source>
        <translation>ディフューズ(&amp;D)</translation>
    </message>
    <message>
        <source>Opacity texture of the material</source>
        <translation>マテリアルの不透明度テクスチャ</translation>
    </message>
    <message>
        <source>Opacity texture</source>
        <translation>不透明度テクスチャ</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>不透明度(&amp;O)</translation>
    </message>
    <message>
        <source>Weight image of the material: black holds the vertices, lighter grays let them move. Drop an image file here, or double-click to choose one.</source>
        <translation>マテリアルのウェイト画像。黒は頂点を固定し、明るいグレーほど動きます。画像ファイルをここにドロップするか、ダブルクリックして選択してください。</translation>
    </message>
    <message>
        <source>Weight image</source>
        <translation>ウェイト画像</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>ウェイト(&amp;W)</translation>
    </message>
    <message>
        <source>The chosen texture, enlarged</source>
        <translation>選択したテクスチャの拡大表示</translation>
    </message>
    <message>
        <source>Preview of the chosen texture</source>
        <translation>選択したテクスチャのプレビュー</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>File that the weight image is linked to</source>
        <translation>ウェイト画像のリンク先ファイル</translation>
    </message>
    <message>
        <source>File of the weight image</source>
        <translation>ウェイト画像のファイル</translation>
    </message>
    <message>
        <source>No linked file</source>
        <translation>リンクされたファイルなし</translation>
    </message>
    <message>
        <source>Show the folder of the weight image&apos;s file</source>
        <translation>ウェイト画像ファイルのフォルダーを表示します</translation>
    </message>
    <message>
        <source>Open Folde&amp;r</source>
        <translation>フォルダーを開く(&amp;R)</translation>
    </message>
    <message>
        <source>Load an image file as the weight image</source>
        <translation>画像ファイルをウェイト画像として読み込みます</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>読み込み(&amp;L)...</translation>
    </message>
    <message>
        <source>Save the weight image to a file</source>
        <translation>ウェイト画像をファイルに保存します</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Take the weight image away from the material</source>
        <translation>マテリアルからウェイト画像を外します</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Keep the weight image inside the material instead of linking its file</source>
        <translation>ファイルにリンクせず、ウェイト画像をマテリアルに埋め込みます</translation>
    </message>
    <message>
        <source>&amp;Embed</source>
        <translation>埋め込み(&amp;E)</translation>
    </message>
    <message>
        <source>Edit the chosen texture in the external image editor</source>
        <translation>選択したテクスチャを外部の画像エディターで編集します</translation>
    </message>
    <message>
        <source>Ed&amp;it</source>
        <translation>編集(&amp;I)</translation>
    </message>
    <message>
        <source>Open the UV layout over the diffuse texture in the external image editor</source>
        <translation>ディフューズテクスチャに重ねた UV レイアウトを外部の画像エディターで開きます</translation>
    </message>
    <message>
        <source>&amp;UV Layout</source>
        <translation>UV レイアウト(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>明るさ(&amp;B)</translation>
    </message>
    <message>
        <source>Brightness of the weight image, -100 to 100</source>
        <translation>ウェイト画像の明るさ (-100 ～ 100)</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>コントラスト(&amp;C)</translation>
    </message>
    <message>
        <source>Contrast of the weight image, -100 to 100</source>
        <translation>ウェイト画像のコントラスト (-100 ～ 100)</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Stop Picking</source>
        <translation>ピックを終了</translation>
    </message>
</context>
<context>
    <name>SoftClothMaterialTable</name>
    <message>
        <source>Material Table</source>
        <translation>マテリアル表</translation>
    </message>
    <message>
        <source>&amp;Materials that take part in the soft cloth:</source>
        <translation>ソフトクロスに使うマテリアル(&amp;M)：</translation>
    </message>
    <message>
        <source>Ticked materials take part in the soft cloth</source>
        <translation>チェックしたマテリアルがソフトクロスに使われます</translation>
    </message>
    <message>
        <source>Materials of the object</source>
        <translation>オブジェクトのマテリアル</translation>
    </message>
    <message>
        <source>Apply the ticks to the materials</source>
        <translation>チェックをマテリアルに適用します</translation>
    </message>
    <message>
        <source>C&amp;onfirm</source>
        <translation>確定(&amp;O)</translation>
    </message>
    <message>
        <source>Leave the materials as they are</source>
        <translation>マテリアルをそのままにします</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SoftClothPreset</name>
    <message>
        <source>Fold or unfold the presets</source>
        <translation>プリセットの折りたたみと展開</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the selected object on or off</source>
        <translation>選択したオブジェクトのソフトクロス物理をオンまたはオフにします</translation>
    </message>
    <message>
        <source>Activate Ph&amp;ysics</source>
        <translation>物理を有効化(&amp;Y)</translation>
    </message>
    <message>
        <source>Turns the selected object into a rigid body</source>
        <translation>選択したオブジェクトを剛体にします</translation>
    </message>
    <message>
        <source>Rigid Body</source>
        <translation>剛体</translation>
    </message>
    <message>
        <source>The selected object is soft cloth</source>
        <translation>選択したオブジェクトはソフトクロスです</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>ソフトクロス</translation>
    </message>
    <message>
        <source>The cloth falls as the scene&apos;s gravity pulls; otherwise it does not fall</source>
        <translation>シーンの重力でクロスが落下します。オフでは落下しません</translation>
    </message>
    <message>
        <source>Use &amp;World Gravity</source>
        <translation>ワールド重力を使用(&amp;W)</translation>
    </message>
    <message>
        <source>Edits go to all materials of the object instead of the selected one only</source>
        <translation>選択したマテリアルだけでなく、オブジェクトのすべてのマテリアルを編集します</translation>
    </message>
    <message>
        <source>Affect A&amp;ll Materials</source>
        <translation>すべてのマテリアルに適用(&amp;L)</translation>
    </message>
    <message>
        <source>A gray-scale image that says which parts follow the simulation: black stays, white moves</source>
        <translation>どの部分がシミュレーションに従うかを示すグレースケール画像。黒は固定、白は動きます</translation>
    </message>
    <message>
        <source>Weight &amp;Map</source>
        <translation>ウェイトマップ(&amp;M)</translation>
    </message>
    <message>
        <source>Opens or closes the weight maps of the object&apos;s materials</source>
        <translation>オブジェクトのマテリアルのウェイトマップを開く、または閉じます</translation>
    </message>
    <message>
        <source>Paint Weights…</source>
        <translation>ウェイトをペイント…</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>クロス</translation>
    </message>
    <message>
        <source>Double-click a preset or press Return to apply its values to the selected material</source>
        <translation>プリセットをダブルクリックするか、Enter キーを押すと、選択したマテリアルに値を適用します</translation>
    </message>
    <message>
        <source>Cloth presets</source>
        <translation>クロスのプリセット</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>コットン</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>デニム</translation>
    </message>
    <message>
        <source>Leather</source>
        <translation>レザー</translation>
    </message>
    <message>
        <source>Silk</source>
        <translation>シルク</translation>
    </message>
    <message>
        <source>Rubber</source>
        <translation>ゴム</translation>
    </message>
    <message>
        <source>Wool</source>
        <translation>ウール</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>リネン</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>ベルベット</translation>
    </message>
    <message>
        <source>Hair</source>
        <translation>ヘア</translation>
    </message>
    <message>
        <source>Hair presets</source>
        <translation>ヘアのプリセット</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>ショート</translation>
    </message>
    <message>
        <source>Bob</source>
        <translation>ボブ</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>ロング</translation>
    </message>
    <message>
        <source>Curly</source>
        <translation>カール</translation>
    </message>
    <message>
        <source>Ponytail</source>
        <translation>ポニーテール</translation>
    </message>
    <message>
        <source>Braid</source>
        <translation>三つ編み</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>風</translation>
    </message>
    <message>
        <source>Wind presets</source>
        <translation>風のプリセット</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>無風</translation>
    </message>
    <message>
        <source>Breeze</source>
        <translation>そよ風</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>強風</translation>
    </message>
    <message>
        <source>Gusts</source>
        <translation>突風</translation>
    </message>
    <message>
        <source>Whirl</source>
        <translation>渦</translation>
    </message>
    <message>
        <source>Applies the values of a custom profile</source>
        <translation>カスタムプロファイルの値を適用します</translation>
    </message>
    <message>
        <source>Load Profile…</source>
        <translation>プロファイルを読み込む…</translation>
    </message>
    <message>
        <source>Saves the values that the panel shows as a custom profile</source>
        <translation>パネルの値をカスタムプロファイルとして保存します</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>プロファイルを保存…</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>一定の風</translation>
    </message>
</context>
<context>
    <name>SoftClothProperty</name>
    <message>
        <source>Fold or unfold the property settings</source>
        <translation>プロパティ設定の折りたたみと展開</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms</source>
        <translation>クロスの質量 (キログラム)</translation>
    </message>
    <message>
        <source>M&amp;ass</source>
        <translation>質量(&amp;A)</translation>
    </message>
    <message>
        <source>Mass of the cloth, in kilograms. How hard it is to push the cloth around.</source>
        <translation>クロスの質量 (キログラム)。大きいほどクロスを動かしにくくなります。</translation>
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
        <translation>クロスを 1 秒間に計算する回数 (ヘルツ)</translation>
    </message>
    <message>
        <source>Solver Fre&amp;quency</source>
        <translation>ソルバー周波数(&amp;Q)</translation>
    </message>
    <message>
        <source>How often per second the cloth is solved, in hertz. More makes it steadier and stiffer, and costs simulation time.</source>
        <translation>クロスを 1 秒間に計算する回数 (ヘルツ)。大きいほど安定して硬くなり、シミュレーション時間がかかります。</translation>
    </message>
    <message>
        <source>Solver Frequency</source>
        <translation>ソルバー周波数</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1</source>
        <translation>触れたものへのクロスのくっつきやすさ (0 ～ 1)</translation>
    </message>
    <message>
        <source>F&amp;riction</source>
        <translation>摩擦(&amp;R)</translation>
    </message>
    <message>
        <source>How well the cloth clings to what it touches, from 0 to 1. 0 slides freely, 1 hardly slides at all.</source>
        <translation>触れたものへのクロスのくっつきやすさ (0 ～ 1)。0 では自由に滑り、1 ではほとんど滑りません。</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1</source>
        <translation>クロスの動きが収まる速さ (0 ～ 1)</translation>
    </message>
    <message>
        <source>&amp;Damping</source>
        <translation>減衰(&amp;D)</translation>
    </message>
    <message>
        <source>How fast the movement of the cloth dies down, from 0 to 1. 0 lets it swing on, 1 calms it at once.</source>
        <translation>クロスの動きが収まる速さ (0 ～ 1)。0 では揺れ続け、1 ではすぐに止まります。</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>減衰</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1</source>
        <translation>空気がクロスを引き留める強さ (0 ～ 1)</translation>
    </message>
    <message>
        <source>Dra&amp;g</source>
        <translation>空気抵抗(&amp;G)</translation>
    </message>
    <message>
        <source>How much the air holds the cloth back, from 0 to 1. 0 cuts through the air, 1 is carried along with it.</source>
        <translation>空気がクロスを引き留める強さ (0 ～ 1)。0 では空気を切って進み、1 では空気とともに流されます。</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>空気抵抗</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest</source>
        <translation>クロスが固定位置から離れられる距離 (静止時の長さに対する倍率)</translation>
    </message>
    <message>
        <source>Tet&amp;her Limit</source>
        <translation>テザー制限(&amp;H)</translation>
    </message>
    <message>
        <source>How far the cloth may get away from where it is attached, as a multiple of its length at rest. At 1 it never gets longer than it was modelled.</source>
        <translation>クロスが固定位置から離れられる距離 (静止時の長さに対する倍率)。1 ではモデリング時より長くなりません。</translation>
    </message>
    <message>
        <source>Tether Limit</source>
        <translation>テザー制限</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101</source>
        <translation>テザー制限の厳しさ (1 ～ 101)</translation>
    </message>
    <message>
        <source>&amp;Tether Stiffness</source>
        <translation>テザー剛性(&amp;T)</translation>
    </message>
    <message>
        <source>How strictly the tether limit holds, from 1 to 101. 1 is the strictest, 101 lets the cloth pass the limit.</source>
        <translation>テザー制限の厳しさ (1 ～ 101)。1 が最も厳しく、101 ではクロスが制限を超えられます。</translation>
    </message>
    <message>
        <source>Tether Stiffness</source>
        <translation>テザー剛性</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent</source>
        <translation>伸びに対する剛性を減らす割合 (パーセント)</translation>
    </message>
    <message>
        <source>&amp;Stiffness</source>
        <translation>剛性(&amp;S)</translation>
    </message>
    <message>
        <source>How much stiffness against stretching is taken away, in percent. At 0 % the cloth keeps its size, at 100 % it stretches freely; below 0 % it is stiffer still.</source>
        <translation>伸びに対する剛性を減らす割合 (パーセント)。0 % ではクロスの大きさが保たれ、100 % では自由に伸びます。0 % 未満ではさらに硬くなります。</translation>
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
        <translation>曲げに対する剛性を減らす割合 (パーセント)</translation>
    </message>
    <message>
        <source>&amp;Bending</source>
        <translation>曲げ(&amp;B)</translation>
    </message>
    <message>
        <source>How much stiffness against bending is taken away, in percent. At 0 % the cloth hardly folds, at 100 % it folds freely; below 0 % it is stiffer still.</source>
        <translation>曲げに対する剛性を減らす割合 (パーセント)。0 % ではほとんど折れず、100 % では自由に折れます。0 % 未満ではさらに硬くなります。</translation>
    </message>
    <message>
        <source>Bending</source>
        <translation>曲げ</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths</source>
        <translation>オブジェクトの動きがクロスに伝わる量 (10 分の 1 単位)</translation>
    </message>
    <message>
        <source>&amp;Inertia Scale</source>
        <translation>慣性スケール(&amp;I)</translation>
    </message>
    <message>
        <source>How much of the movement of its object reaches the cloth, in tenths. At 0 nothing reaches it, at 10 all, at 20 twice as much; applies to straight movement, turning and centrifugal force alike.</source>
        <translation>オブジェクトの動きがクロスに伝わる量 (10 分の 1 単位)。0 では何も伝わらず、10 ではすべて、20 では 2 倍が伝わります。直線運動、回転、遠心力に等しく適用されます。</translation>
    </message>
    <message>
        <source>Inertia Scale</source>
        <translation>慣性スケール</translation>
    </message>
</context>
<context>
    <name>SoftClothWindSetting</name>
    <message>
        <source>Fold or unfold the wind settings</source>
        <translation>風の設定の折りたたみと展開</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>風</translation>
    </message>
    <message>
        <source>Steady push of the wind along each axis, in scene units per second squared</source>
        <translation>各軸に沿った風の一定の力 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>External Acceleration</source>
        <translation>外部加速度</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared</source>
        <translation>X 方向の風の一定の力 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Steady push of the wind along X, in scene units per second squared. A negative number blows the other way.</source>
        <translation>X 方向の風の一定の力 (シーン単位/秒²)。負の値では逆向きに吹きます。</translation>
    </message>
    <message>
        <source>External acceleration X</source>
        <translation>外部加速度 X</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared</source>
        <translation>Y 方向の風の一定の力 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Y, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Y 方向の風の一定の力 (シーン単位/秒²)。負の値では逆向きに吹きます。</translation>
    </message>
    <message>
        <source>External acceleration Y</source>
        <translation>外部加速度 Y</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared</source>
        <translation>Z 方向の風の一定の力 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Steady push of the wind along Z, in scene units per second squared. A negative number blows the other way.</source>
        <translation>Z 方向の風の一定の力 (シーン単位/秒²)。負の値では逆向きに吹きます。</translation>
    </message>
    <message>
        <source>External acceleration Z</source>
        <translation>外部加速度 Z</translation>
    </message>
    <message>
        <source>Largest random push of the wind along each axis, in scene units per second squared</source>
        <translation>各軸に沿った風のランダムな力の最大値 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>Random Acceleration</source>
        <translation>ランダム加速度</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared</source>
        <translation>X 方向の風のランダムな力の最大値 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along X, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>X 方向の風のランダムな力の最大値 (シーン単位/秒²)。風の周波数で強まったり弱まったりします。</translation>
    </message>
    <message>
        <source>Random acceleration X</source>
        <translation>ランダム加速度 X</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared</source>
        <translation>Y 方向の風のランダムな力の最大値 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Y, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Y 方向の風のランダムな力の最大値 (シーン単位/秒²)。風の周波数で強まったり弱まったりします。</translation>
    </message>
    <message>
        <source>Random acceleration Y</source>
        <translation>ランダム加速度 Y</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared</source>
        <translation>Z 方向の風のランダムな力の最大値 (シーン単位/秒²)</translation>
    </message>
    <message>
        <source>Largest random push of the wind along Z, in scene units per second squared. It comes and goes at the wind frequency.</source>
        <translation>Z 方向の風のランダムな力の最大値 (シーン単位/秒²)。風の周波数で強まったり弱まったりします。</translation>
    </message>
    <message>
        <source>Random acceleration Z</source>
        <translation>ランダム加速度 Z</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz</source>
        <translation>ランダムな力が変わる頻度 (ヘルツ)</translation>
    </message>
    <message>
        <source>Wind Freq&amp;uency</source>
        <translation>風の周波数(&amp;U)</translation>
    </message>
    <message>
        <source>How often the random push changes, in hertz. 0 keeps it as it is.</source>
        <translation>ランダムな力が変わる頻度 (ヘルツ)。0 では変わりません。</translation>
    </message>
    <message>
        <source>Wind Frequency</source>
        <translation>風の周波数</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles</source>
        <translation>ランダムな力の変動幅。2 つのハンドルの間の乱数を掛けます</translation>
    </message>
    <message>
        <source>Rand&amp;om Factor</source>
        <translation>ランダム係数(&amp;O)</translation>
    </message>
    <message>
        <source>How much the random push varies: it is multiplied by a random number between the two handles. Drag a handle or use the arrow keys to move it; the handles keep their order.</source>
        <translation>ランダムな力の変動幅。2 つのハンドルの間の乱数を掛けます。ハンドルはドラッグするか、矢印キーで動かします。ハンドルの順序は変わりません。</translation>
    </message>
    <message>
        <source>Random Factor</source>
        <translation>ランダム係数</translation>
    </message>
    <message>
        <source>Smallest factor</source>
        <translation>最小の係数</translation>
    </message>
    <message>
        <source>from 0</source>
        <translation>最小 0</translation>
    </message>
    <message>
        <source>Largest factor</source>
        <translation>最大の係数</translation>
    </message>
    <message>
        <source>to 10</source>
        <translation>最大 10</translation>
    </message>
</context>
</TS>
