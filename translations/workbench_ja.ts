<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Host::CallJournal</name>
    <message>
        <source>Only the last calls are kept: the first %L1 since the journal was emptied are gone.</source>
        <translation>最新の呼び出しだけが残ります。記録を空にしてから最初の %L1 件は残っていません。</translation>
    </message>
</context>
<context>
    <name>Host::CallJournalModel</name>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>呼び出し</translation>
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
        <translation>このディスプレイでは OpenGL 3.3 が使えないため、モデルは表示されません。</translation>
    </message>
    <message>
        <source>The model is not shown, because this workbench was built without a view of it.</source>
        <translation>このプログラムはモデルのビューなしでビルドされたため、モデルは表示されません。</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>ホスト呼び出し</translation>
    </message>
</context>
<context>
    <name>Host::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete Object</source>
        <translation>オブジェクトを削除(&amp;D)</translation>
    </message>
    <message>
        <source>Image &amp;Editor…</source>
        <translation>画像エディター(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>元に戻す:(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>やり直し:(&amp;R) %1</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>画像エディター</translation>
    </message>
    <message>
        <source>Program that opens weight images; empty for what the desktop opens them with:</source>
        <translation>ウェイト画像を開くプログラム。空欄ではデスクトップの既定のプログラムで開きます:</translation>
    </message>
</context>
<context>
    <name>Host::HostApplication</name>
    <message>
        <source>Import %1</source>
        <translation>%1 をインポート</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 を削除</translation>
    </message>
    <message>
        <source>Soft cloth on</source>
        <translation>ソフトクロスをオン</translation>
    </message>
    <message>
        <source>Soft cloth off</source>
        <translation>ソフトクロスをオフ</translation>
    </message>
    <message>
        <source>Cancel soft cloth</source>
        <translation>ソフトクロスを取り消し</translation>
    </message>
    <message>
        <source>embedded weight image</source>
        <translation>埋め込まれたウェイト画像</translation>
    </message>
    <message>
        <source>Load weight image %1</source>
        <translation>ウェイト画像 %1 を読み込む</translation>
    </message>
    <message>
        <source>Delete weight image</source>
        <translation>ウェイト画像を削除</translation>
    </message>
    <message>
        <source>Embed weight image</source>
        <translation>ウェイト画像を埋め込む</translation>
    </message>
    <message>
        <source>Adjust weight image</source>
        <translation>ウェイト画像を調整</translation>
    </message>
    <message>
        <source>The edited weight image is black wherever the material has vertices; the former one is kept.</source>
        <translation>編集されたウェイト画像は、マテリアルの頂点がある場所がすべて黒です。以前の画像を使います。</translation>
    </message>
    <message>
        <source>Edit weight image</source>
        <translation>ウェイト画像を編集</translation>
    </message>
    <message>
        <source>The weight image could not be saved as &quot;%1&quot;: %2.</source>
        <translation>ウェイト画像を「%1」として保存できませんでした: %2。</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>画像がありません</translation>
    </message>
    <message>
        <source>the material is linked to this file, whose image would be adjusted again</source>
        <translation>マテリアルがこのファイルにリンクされているため、画像が二重に調整されます</translation>
    </message>
    <message>
        <source>images of this format cannot be written</source>
        <translation>この形式の画像は書き込めません</translation>
    </message>
    <message>
        <source>Convert to rigid body</source>
        <translation>剛体に変換</translation>
    </message>
    <message>
        <source>World gravity</source>
        <translation>ワールド重力</translation>
    </message>
    <message>
        <source>Ignore materials</source>
        <translation>マテリアルを除外</translation>
    </message>
    <message>
        <source>Soft cloth property</source>
        <translation>ソフトクロスのプロパティ</translation>
    </message>
    <message>
        <source>Soft cloth collision</source>
        <translation>ソフトクロスのコリジョン</translation>
    </message>
    <message>
        <source>Soft cloth wind</source>
        <translation>ソフトクロスの風</translation>
    </message>
    <message>
        <source>Add %1 to the soft cloth</source>
        <translation>%1 をソフトクロスに追加</translation>
    </message>
    <message>
        <source>Take %1 out of the soft cloth</source>
        <translation>%1 をソフトクロスから除く</translation>
    </message>
    <message>
        <source>Load weight image</source>
        <translation>ウェイト画像を読み込む</translation>
    </message>
    <message>
        <source>Load soft cloth settings</source>
        <translation>ソフトクロス設定を読み込む</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>画像を開く</translation>
    </message>
    <message>
        <source>embedded texture of %1</source>
        <translation>%1 の埋め込みテクスチャ</translation>
    </message>
    <message>
        <source>Make soft cloth</source>
        <translation>ソフトクロスを作成</translation>
    </message>
    <message>
        <source>Delete %1 objects</source>
        <translation>%1 個のオブジェクトを削除</translation>
    </message>
    <message>
        <source>The model &quot;%1&quot; is too large for this scene: %2.</source>
        <translation>モデル「%1」はこのシーンには大きすぎます: %2。</translation>
    </message>
    <message>
        <source>The mesh &quot;%1&quot; has no texture coordinates, which would say where the image lies on it.</source>
        <translation>メッシュ「%1」には、画像の位置を示すテクスチャ座標がありません。</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp)</source>
        <translation>画像 (*.png *.jpg *.jpeg *.bmp)</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</source>
        <translation>画像 (*.jpg *.jpeg *.bmp *.gif *.png *.tga)</translation>
    </message>
    <message>
        <source>Keep UV Layout</source>
        <translation>UV レイアウトを保存</translation>
    </message>
</context>
<context>
    <name>Host::HostCallsView</name>
    <message>
        <source>Filter calls, for example SetSoftCloth</source>
        <translation>呼び出しを絞り込む (例: SetSoftCloth)</translation>
    </message>
    <message>
        <source>Shows only the calls that contain this text</source>
        <translation>この文字列を含む呼び出しだけを表示します</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copies the whole journal as text</source>
        <translation>ログ全体をテキストとしてコピーします</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Empties the journal</source>
        <translation>ログを空にします</translation>
    </message>
    <message>
        <source>Filter of the host calls</source>
        <translation>ホスト呼び出しのフィルター</translation>
    </message>
    <message>
        <source>Host calls</source>
        <translation>ホスト呼び出し</translation>
    </message>
</context>
<context>
    <name>Host::HostControls</name>
    <message>
        <source>Application</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>Family A (0x7)</source>
        <translation>ファミリー A (0x7)</translation>
    </message>
    <message>
        <source>Family B (0x1800000)</source>
        <translation>ファミリー B (0x1800000)</translation>
    </message>
    <message>
        <source>Neither</source>
        <translation>どちらでもない</translation>
    </message>
    <message>
        <source>The application that runs the plug-in. Another choice starts the plug-in again.</source>
        <translation>プラグインを実行するアプリケーション。変更するとプラグインが再起動します。</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Physics engine of the scene. The panel is shown for engine 1 only.</source>
        <translation>シーンの物理エンジン。パネルはエンジン 1 でのみ表示されます。</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>エンジン</translation>
    </message>
    <message>
        <source>Selected object</source>
        <translation>選択したオブジェクト</translation>
    </message>
    <message>
        <source>Soft cloth physics</source>
        <translation>ソフトクロス物理</translation>
    </message>
    <message>
        <source>Switches soft cloth physics of the object, as the host&apos;s own menus would</source>
        <translation>ホストのメニューと同じように、オブジェクトのソフトクロス物理を切り替えます</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>タイプ</translation>
    </message>
    <message>
        <source>Type code. Shown types: 1 to 6, 30 to 34, 38, 39, 51 to 53. Types 5 and 6 can be converted.</source>
        <translation>タイプ番号。表示されるタイプ: 1 ～ 6、30 ～ 34、38、39、51 ～ 53。タイプ 5 と 6 は変換できます。</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Kind code. Kind 14 has no choice of rigid body or soft cloth.</source>
        <translation>種類の番号。種類 14 では剛体とソフトクロスを選べません。</translation>
    </message>
    <message>
        <source>Convert state</source>
        <translation>変換状態</translation>
    </message>
    <message>
        <source>3 is at rest; another state of a type 5 or 6 object hides the panel in family A</source>
        <translation>3 は変換していない状態です。タイプ 5 または 6 のオブジェクトがほかの状態のとき、ファミリー A ではパネルが隠れます</translation>
    </message>
    <message>
        <source>Hides the panel for this object</source>
        <translation>このオブジェクトではパネルを隠します</translation>
    </message>
    <message>
        <source>Blocked in family A</source>
        <translation>ファミリー A でブロック</translation>
    </message>
    <message>
        <source>Blocked in family B</source>
        <translation>ファミリー B でブロック</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>None (0)</source>
        <translation>なし (0)</translation>
    </message>
    <message>
        <source>Weight map (25)</source>
        <translation>ウェイトマップ (25)</translation>
    </message>
    <message>
        <source>Another (7)</source>
        <translation>その他 (7)</translation>
    </message>
    <message>
        <source>Dialog mode</source>
        <translation>ダイアログモード</translation>
    </message>
    <message>
        <source>Material (7)</source>
        <translation>マテリアル (7)</translation>
    </message>
    <message>
        <source>Another (3)</source>
        <translation>その他 (3)</translation>
    </message>
    <message>
        <source>Pick mode</source>
        <translation>ピックモード</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>再生中</translation>
    </message>
    <message>
        <source>Events by hand</source>
        <translation>手動イベント</translation>
    </message>
    <message>
        <source>Topology (0x2)</source>
        <translation>トポロジー (0x2)</translation>
    </message>
    <message>
        <source>Replaced (0x4)</source>
        <translation>置き換え (0x4)</translation>
    </message>
    <message>
        <source>Material list (0x8)</source>
        <translation>マテリアル一覧 (0x8)</translation>
    </message>
    <message>
        <source>Removed (0x40)</source>
        <translation>削除 (0x40)</translation>
    </message>
    <message>
        <source>Material names (0x100)</source>
        <translation>マテリアル名 (0x100)</translation>
    </message>
    <message>
        <source>Sends that the data of the selected objects have changed</source>
        <translation>選択したオブジェクトのデータの変更を通知します</translation>
    </message>
    <message>
        <source>Data changed</source>
        <translation>データの変更</translation>
    </message>
    <message>
        <source>Sends this event to the plug-in</source>
        <translation>このイベントをプラグインに送ります</translation>
    </message>
    <message>
        <source>Hierarchy changed</source>
        <translation>階層の変更</translation>
    </message>
    <message>
        <source>Undo or redo done</source>
        <translation>元に戻す/やり直し完了</translation>
    </message>
    <message>
        <source>About to convert</source>
        <translation>変換の直前</translation>
    </message>
    <message>
        <source>Several materials detected</source>
        <translation>複数マテリアルの検出</translation>
    </message>
    <message>
        <source>Edited image saved</source>
        <translation>編集画像の保存</translation>
    </message>
    <message>
        <source>Failing calls</source>
        <translation>失敗させる呼び出し</translation>
    </message>
    <message>
        <source>GetSoftClothCollision</source>
        <translation>GetSoftClothCollision</translation>
    </message>
    <message>
        <source>Host operation that is to fail, as the Host Calls view names it</source>
        <translation>失敗させるホストの操作 (ホスト呼び出しの表示名)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Status that the failing call answers</source>
        <translation>失敗した呼び出しが返すステータス</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Let it fail</source>
        <translation>失敗させる</translation>
    </message>
    <message>
        <source>Mend all</source>
        <translation>すべて元に戻す</translation>
    </message>
</context>
<context>
    <name>Host::ImageEditor</name>
    <message>
        <source>there is no folder for temporary files</source>
        <translation>一時ファイル用のフォルダーがありません</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; for the image editor could not be written: %2.</source>
        <translation>画像エディター用のファイル「%1」を書き込めませんでした: %2。</translation>
    </message>
</context>
<context>
    <name>Host::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>システムの言語(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Host::Legend</name>
    <message>
        <source>Held (black)</source>
        <translation>固定（黒）</translation>
    </message>
    <message>
        <source>Free (white)</source>
        <translation>自由（白）</translation>
    </message>
    <message>
        <source>No weight image</source>
        <translation>ウェイト画像なし</translation>
    </message>
    <message>
        <source>Legend of the weights</source>
        <translation>ウェイトの凡例</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>Scene</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>Host Controls</source>
        <translation>ホストコントロール</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>The page of the host&apos;s panels that the plug-in asked for last</source>
        <translation>プラグインが最後に要求したホストのパネルページ</translation>
    </message>
    <message>
        <source>Panel page %1, place %2, option %3</source>
        <translation>パネルページ %1、位置 %2、オプション %3</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
</context>
<context>
    <name>Host::MovingVertices</name>
    <message>
        <source>How many vertices of the chosen material the weight image lets move. More than %L1 are slow to simulate.</source>
        <translation>選択したマテリアルの頂点のうち、ウェイト画像で動くものの数です。%L1 個を超えるとシミュレーションが遅くなります。</translation>
    </message>
    <message>
        <source>%1: %L2 of %L3 vertices move</source>
        <translation>%1: %L3 頂点中 %L2 頂点が動きます</translation>
    </message>
</context>
<context>
    <name>Host::PanelActions</name>
    <message>
        <source>&amp;Weight Map Dialog</source>
        <translation>ウェイトマップダイアログ(&amp;W)</translation>
    </message>
    <message>
        <source>Opens or closes the dialog that chooses the material and its weight image</source>
        <translation>マテリアルとそのウェイト画像を選ぶダイアログを開閉します</translation>
    </message>
    <message>
        <source>Soft Cloth</source>
        <translation>ソフトクロス</translation>
    </message>
</context>
<context>
    <name>Host::PickGuide</name>
    <message>
        <source>Click a material to pick it; Escape ends picking.</source>
        <translation>マテリアルをクリックして選択します。Esc で終了します。</translation>
    </message>
</context>
<context>
    <name>Host::RecentFiles</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>リストを消去(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Host::SceneFiles</name>
    <message>
        <source>Soft cloth scenes (*.clothscene)</source>
        <translation>ソフトクロスシーン (*.clothscene)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>新規シーン(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open Scene…</source>
        <translation>シーンを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Import Model…</source>
        <translation>モデルをインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Recent Files</source>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Scene</source>
        <translation>シーンを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save Scene &amp;As…</source>
        <translation>名前を付けてシーンを保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 を読み込み中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Import cancelled</source>
        <translation>インポートを中止しました</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
    <message>
        <source>Import Model</source>
        <translation>モデルをインポート</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>モデル (*.%1)</translation>
    </message>
    <message>
        <source>Open Scene</source>
        <translation>シーンを開く</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>シーンを保存</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存の変更</translation>
    </message>
    <message>
        <source>The scene has changes that are not saved.</source>
        <translation>シーンに保存されていない変更があります。</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
</context>
<context>
    <name>Host::SceneTree</name>
    <message>
        <source>Objects of the scene</source>
        <translation>シーンのオブジェクト</translation>
    </message>
</context>
<context>
    <name>Host::UnitDialog</name>
    <message>
        <source>Import Model</source>
        <translation>モデルをインポート</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say in which unit it was made.</source>
        <translation>「%1」には単位が記されていません。</translation>
    </message>
    <message>
        <source>&amp;Unit of the file</source>
        <translation>ファイルの単位(&amp;U)</translation>
    </message>
    <message>
        <source>Largest side</source>
        <translation>最大の辺</translation>
    </message>
    <message>
        <source>%1 cm in the scene</source>
        <translation>シーン内で %1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewActions</name>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>選択をフレームに収める(&amp;F)</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>すべてをフレームに収める(&amp;A)</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>前面(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation>側面(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>上面(&amp;T)</translation>
    </message>
    <message>
        <source>Shows the weight images on the model: what is held and what moves freely</source>
        <translation>ウェイト画像をモデル上に表示します。固定される部分と自由に動く部分が分かります</translation>
    </message>
    <message>
        <source>Show Wei&amp;ghts</source>
        <translation>ウェイトを表示(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Host::ViewTexts</name>
    <message>
        <source>Grid: %1 cm</source>
        <translation>グリッド: %1 cm</translation>
    </message>
</context>
<context>
    <name>Host::ViewedScene</name>
    <message>
        <source>Triangles that cannot be shown, because a corner is nowhere: %L1</source>
        <translation>頂点の位置がないため表示できない三角形: %L1</translation>
    </message>
    <message>
        <source>Textures that cannot be read: %1</source>
        <translation>読み込めないテクスチャ: %1</translation>
    </message>
</context>
<context>
    <name>Host::ViewportWidget</name>
    <message>
        <source>View of the model</source>
        <translation>モデルのビュー</translation>
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
        <translation>JPEG、BMP、GIF、PNG、TGA のいずれの画像でもありません</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 on a side are too many</source>
        <translation>%1 x %2 ピクセルあり、一辺の上限 %3 を超えています</translation>
    </message>
    <message>
        <source>it has %1 x %2 pixels, and more than %3 in all are too many</source>
        <translation>%1 x %2 ピクセルあり、合計の上限 %3 を超えています</translation>
    </message>
    <message>
        <source>it is truncated</source>
        <translation>途中で切れています</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのようなファイルはありません</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2.</source>
        <translation>画像「%1」を読み込めませんでした: %2。</translation>
    </message>
</context>
<context>
    <name>ModelText</name>
    <message>
        <source>The model file &quot;%1&quot; could not be read: %2</source>
        <translation>モデルファイル「%1」を読み込めませんでした: %2</translation>
    </message>
    <message>
        <source>The model in &quot;%1&quot; is too large: %2.</source>
        <translation>「%1」のモデルは大きすぎます: %2。</translation>
    </message>
    <message>
        <source>There is no model file &quot;%1&quot;.</source>
        <translation>モデルファイル「%1」はありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is empty.</source>
        <translation>モデルファイル「%1」は空です。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; is too large.</source>
        <translation>モデルファイル「%1」は大きすぎます。</translation>
    </message>
    <message>
        <source>it is damaged.</source>
        <translation>破損しています。</translation>
    </message>
    <message>
        <source>The model file &quot;%1&quot; holds no surfaces.</source>
        <translation>モデルファイル「%1」にはサーフェスがありません。</translation>
    </message>
</context>
<context>
    <name>PanelHint</name>
    <message>
        <source>The scene is empty. Import a model with File &gt; Import Model, or drop its file on this window.</source>
        <translation>シーンは空です。[ファイル] &gt; [モデルをインポート] でモデルをインポートするか、ファイルをこのウィンドウにドロップしてください。</translation>
    </message>
    <message>
        <source>Click an object in the scene to edit its soft cloth.</source>
        <translation>シーンのオブジェクトをクリックすると、そのソフトクロスを編集できます。</translation>
    </message>
    <message>
        <source>Several objects are selected. Select one alone to edit its soft cloth.</source>
        <translation>複数のオブジェクトが選択されています。ソフトクロスを編集するには 1 つだけ選択してください。</translation>
    </message>
    <message>
        <source>Soft cloth needs physics engine 1: see Host Controls.</source>
        <translation>ソフトクロスには物理エンジン 1 が必要です。ホストコントロールを参照してください。</translation>
    </message>
    <message>
        <source>There is no soft cloth for this object. Its type, its kind or a block may keep it out: see Host Controls.</source>
        <translation>このオブジェクトにはソフトクロスがありません。タイプ、種類、またはブロックが原因の可能性があります。ホストコントロールを参照してください。</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>%1 is not a plug-in for this host.</source>
        <translation>%1 はこのホストのプラグインではありません。</translation>
    </message>
    <message>
        <source>%1 does not work in this host.</source>
        <translation>%1 はこのホストでは動作しません。</translation>
    </message>
    <message>
        <source>%1 did not start (0x%2).</source>
        <translation>%1 は起動しませんでした (0x%2)。</translation>
    </message>
    <message>
        <source>%1 is not a plug-in for this host: %2</source>
        <translation>%1 はこのホストのプラグインではありません: %2</translation>
    </message>
    <message>
        <source>There is no resource file &quot;%1&quot;.</source>
        <translation>リソースファイル「%1」がありません。</translation>
    </message>
</context>
<context>
    <name>PreviewText</name>
    <message>
        <source>The preview stopped because the cloth got out of control. Reset starts it again.</source>
        <translation>クロスが制御不能になったため、プレビューを停止しました。リセットすると再開します。</translation>
    </message>
</context>
<context>
    <name>Scene</name>
    <message>
        <source>Several values</source>
        <translation>複数の値</translation>
    </message>
</context>
<context>
    <name>SceneText</name>
    <message>
        <source>is named a second time</source>
        <translation>は重複して指定されています</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>は空です</translation>
    </message>
    <message>
        <source>is both linked and embedded</source>
        <translation>はリンクと埋め込みの両方になっています</translation>
    </message>
    <message>
        <source>is damaged: its check sum does not fit</source>
        <translation>は破損しています (チェックサムが一致しません)</translation>
    </message>
    <message>
        <source>does not hold as many items as it says</source>
        <translation>の項目数が記載と一致しません</translation>
    </message>
    <message>
        <source>cannot be unpacked</source>
        <translation>は展開できません</translation>
    </message>
    <message>
        <source>its values are nested more than %1 levels deep</source>
        <translation>値の入れ子が %1 段を超えています</translation>
    </message>
    <message>
        <source>it has more than %1 values</source>
        <translation>値の数が %1 個を超えています</translation>
    </message>
    <message>
        <source>must be a group of values</source>
        <translation>は値のグループでなければなりません</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>がありません</translation>
    </message>
    <message>
        <source>must be a list</source>
        <translation>はリストでなければなりません</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>は真 (true) か偽 (false) でなければなりません</translation>
    </message>
    <message>
        <source>must be text</source>
        <translation>はテキストでなければなりません</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>は数値でなければなりません</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>は %1 から %2 までの整数でなければなりません</translation>
    </message>
    <message>
        <source>is not valid base64</source>
        <translation>は有効な base64 ではありません</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>The scene could not be saved as &quot;%1&quot;: %2.</source>
        <translation>シーンを「%1」として保存できませんでした: %2。</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; could not be loaded: %2.</source>
        <translation>シーンファイル「%1」を読み込めませんでした: %2。</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>名前がありません</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>シーンが大きすぎます</translation>
    </message>
    <message>
        <source>There is no scene file &quot;%1&quot;.</source>
        <translation>シーンファイル「%1」はありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>The scene file &quot;%1&quot; is empty.</source>
        <translation>シーンファイル「%1」は空です。</translation>
    </message>
    <message>
        <source>it is damaged or no scene file at all (%1 at byte %2)</source>
        <translation>破損しているか、シーンファイルではありません (バイト位置 %2: %1)</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>must be a list of 4 numbers</source>
        <translation>は 4 個の数値のリストでなければなりません</translation>
    </message>
    <message>
        <source>is %1, which is in use already</source>
        <translation>は %1 ですが、すでに使われています</translation>
    </message>
    <message>
        <source>has a texture already</source>
        <translation>にはすでにテクスチャがあります</translation>
    </message>
    <message>
        <source>must hold three indices per triangle</source>
        <translation>には三角形ごとに 3 個のインデックスが必要です</translation>
    </message>
    <message>
        <source>names a vertex that the mesh does not have</source>
        <translation>はメッシュにない頂点を指しています</translation>
    </message>
    <message>
        <source>names a material that the object does not have</source>
        <translation>はオブジェクトにないマテリアルを指しています</translation>
    </message>
    <message>
        <source>must hold one item per vertex or none</source>
        <translation>は頂点ごとに 1 項目を持つか、空でなければなりません</translation>
    </message>
    <message>
        <source>has a slot on this mesh already</source>
        <translation>はこのメッシュにすでに割り当てられています</translation>
    </message>
    <message>
        <source>is no object of the scene</source>
        <translation>はシーンのオブジェクトではありません</translation>
    </message>
    <message>
        <source>changes something that the scene does not have</source>
        <translation>はシーンにないものを変更しています</translation>
    </message>
    <message>
        <source>it is no scene of this application</source>
        <translation>このアプリケーションのシーンではありません</translation>
    </message>
    <message>
        <source>it was written by a newer version of this application</source>
        <translation>このアプリケーションの新しいバージョンで保存されています</translation>
    </message>
    <message>
        <source>it has %1 meshes, and more than %2 are too many</source>
        <translation>メッシュが %1 個あり、上限の %2 個を超えています</translation>
    </message>
    <message>
        <source>it has %1 materials, and more than %2 are too many</source>
        <translation>マテリアルが %1 個あり、上限の %2 個を超えています</translation>
    </message>
    <message>
        <source>it has %1 vertices, and more than %2 are too many</source>
        <translation>頂点が %1 個あり、上限の %2 個を超えています</translation>
    </message>
    <message>
        <source>it has %1 triangles, and more than %2 are too many</source>
        <translation>三角形が %1 個あり、上限の %2 個を超えています</translation>
    </message>
    <message>
        <source>must be a whole number in quotation marks</source>
        <translation>は引用符で囲まれた整数でなければなりません</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>は範囲外です</translation>
    </message>
    <message>
        <source>must be a list of %1 numbers</source>
        <translation>は %1 個の数値のリストでなければなりません</translation>
    </message>
    <message>
        <source>must be %1 bytes</source>
        <translation>は %1 バイトでなければなりません</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>Millimetre</source>
        <translation>ミリメートル</translation>
    </message>
    <message>
        <source>Centimetre</source>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>フィート</translation>
    </message>
    <message>
        <source>Metre</source>
        <translation>メートル</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>A stand-in host for the soft cloth physics panel.</source>
        <translation>ソフトクロス物理パネルの代替ホスト。</translation>
    </message>
    <message>
        <source>Model or scene file; the demo character without.</source>
        <translation>モデルまたはシーンのファイル。省略するとデモキャラクター。</translation>
    </message>
    <message>
        <source>Application family: a, b or none.</source>
        <translation>アプリケーションのファミリー: a、b、none。</translation>
    </message>
    <message>
        <source>The plug-in library to load.</source>
        <translation>読み込むプラグインライブラリ。</translation>
    </message>
    <message>
        <source>Run the main job unattended and write pictures into this folder.</source>
        <translation>主な作業を無人で実行し、このフォルダーに画像を書き込みます。</translation>
    </message>
    <message>
        <source>Program, with its options, that opens images in place of the one chosen.</source>
        <translation>選択したものの代わりに画像を開くプログラムとそのオプション。</translation>
    </message>
    <message>
        <source>Language in place of the one chosen, for example de or zh_TW.</source>
        <translation>選択したものの代わりに使う言語 (例: de、zh_TW)。</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;, but these: %2.</source>
        <translation>「%1」という言語はありません。使える言語: %2。</translation>
    </message>
    <message>
        <source>There is no application family &quot;%1&quot;, but these: a, b, none.</source>
        <translation>アプリケーション系列「%1」はありません。あるのは a、b、none です。</translation>
    </message>
    <message>
        <source>Only one model can be opened; &quot;%1&quot; is one too many.</source>
        <translation>開けるモデルは 1 つだけです。「%1」は余分です。</translation>
    </message>
    <message>
        <source>Unit of a model whose file does not name one, in place of asking: %1.</source>
        <translation>ファイルに単位が記されていないモデルの単位（尋ねる代わりに使う）: %1。</translation>
    </message>
    <message>
        <source>There is no unit &quot;%1&quot;, but these: %2.</source>
        <translation>単位「%1」はありません。使える単位: %2。</translation>
    </message>
</context>
</TS>
