<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>開発元のアプリ</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>メール(&amp;E)</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>一覧にアプリはありません。</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Toolvane について</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>バージョン %1。日常で使うファイルとメディアのツールを 1 か所にまとめました。</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>Web(&amp;W)</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>アプリ</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>アクセスが許可されませんでした。</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>アクセスを許可</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>ビデオ変換</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>出力形式</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>作成するビデオ</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>作成するビデオ（拡張子 .m4v）</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>作成するビデオを選択</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_ja.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>変換するビデオ</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>変換するビデオ</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>変換するビデオを選択</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>再生する機器に合った形式にビデオを変換します。</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>高圧縮（最小サイズ）</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>キャッシュ </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>カテゴリー</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>サイズを確認</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>消去</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>日常で使うファイルとメディアのツールを 1 つのウィンドウにまとめたアプリです。</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>開くページ: %1</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>「%1」というページはありません。使用できるページ: %2</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>圧縮(&amp;P)</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>変換(&amp;V)</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>ビデオを変換し、指定したファイルに保存しました。</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>ビデオを変換できませんでした。元のビデオが壊れていないことと、十分な空き容量があることを確認してから、もう一度お試しください。</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>デフォルトグループ</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Toolvane が最初に作成したグループ</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>選択した項目を削除しますか？</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>削除すると元に戻せません。</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>フォルダー内のすべての項目からディスクイメージ (DMG) を作成します。</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>ダウンロード </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>開発元にメールを送ります</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>高速</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>空き容量</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>作成(&amp;G)</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>ガイドを開けませんでした。次の場所にあります:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>作成するイメージファイル</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>作成するイメージ（拡張子 .%1）</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>作成するイメージファイルを選択</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>元のフォルダー</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>イメージに入れるフォルダー</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>元のフォルダーを選択</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>ボリューム名</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>イメージを開いたときに表示される名前</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>棚卸し</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>CD イメージ</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>どのデスクトップ環境でも読める CD イメージ (ISO) をフォルダーから作成します。</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 項目、%2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>残り約 %1 時間</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>残り約 %1 分</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>実行中の作業</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>この作業のページを表示します</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>中止: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>ログイン(&amp;L)</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>ログイン</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>ログ </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>メールのダウンロード </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>メモ</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>Toolvane について(&amp;A)</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>ガイド(&amp;G)</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>登録情報(&amp;R)</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>お使いのユーザーグループにはこの権限がありません。</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>このページを開けるユーザーとしてログインするか、グループへの権限の追加を依頼してください。</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>ホームフォルダーへのアクセスがまだ許可されていません。</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: 失敗しました</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: 中止しました</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: 完了しました</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>出力(&amp;O)</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>出力ファイルがまだ指定されていません。</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>出力形式(&amp;M)</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>出力フォルダーにアーカイブと同じ名前の項目がすでにあります。その項目を移動するか、別の出力フォルダーを選択してください。</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>書き込むイメージファイルがまだ指定されていません。イメージの保存先を選択してください。</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>2 つのパスワードが一致しません。同じパスワードを 2 回入力してください。</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>パスワードがまだありません。入力してください。</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>パスワードが長すぎます。100 文字以内で入力してください。</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>フォルダーを指定しない場合は現在のフォルダーを使います: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>このフォルダーにはアーカイブと同じ名前の項目がすでにあります。</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>これはフォルダーです。ファイル名を付け加えてください。</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>これはフォルダーではありません。</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>このファイルの保存先フォルダーがありません。</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>空き容量が足りない可能性があります: ソースは %1、空きは %2 です。</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>このファイルはありません。</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>このフォルダーはありません。</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>このパスは現在のフォルダーから始まります: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>このファイルはすでにあり、置き換えられます。</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>この名前の項目はすでに存在します。別の名前を指定してください。</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>読み取ることができません。</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>ここには書き込めません。</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>このフォルダーはまだありません。作成されます。</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>権限</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>サイズの確認と消去を行うには、もう一度「アクセスを許可」を押して、ホームフォルダーを選択してください。</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>まず「アクセスを許可」を押して、ホームフォルダーを選択してください。</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>もう一度「アクセスを許可」を押して、次のフォルダーを選択してください: </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>拡張子が .m4v、.mp4、.mpg、.mpeg、.avi のいずれかのビデオを選択してください。</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>変換したビデオの保存先を選択してください。</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>仕入先</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>実行中の作業は中止されます。すでに完成した結果は所定の場所に保存されます。</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>作業を続ける</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>アーカイブは保管されます。次回の起動時に Zip ページに表示されます。</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>まだ実行中の作業があります。終了しますか？</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>完成したアーカイブがまだ保存されていません。終了しますか？</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>速度(&amp;R)</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>読み上げ(&amp;D)</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>データベースは使用中です。ほかのプログラムが使っています。少ししてからこのページを開き直してください。</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>この項目をここで開いている間に、ほかの人が変更しました。</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>この項目をここで開いている間に、ほかの人が削除しました。</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>項目はまだありません。</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>ログイン(&amp;L)…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>それでも保存(&amp;S)</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>ここに表示されている内容で保存するか、保存せずに戻ることができます。</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>項目の保存先: %1</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>%2 から %1 の項目にアクセスできません。今保存した内容は失われます。</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>在庫(&amp;S)</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>登録情報</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>項目を読み込めません。データベースのファイルを確認してから、このページを開き直してください。</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>ユーザーグループ(&amp;G)</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>ユーザー(&amp;U)</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>パスワードの再入力</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>標準の速度に戻す</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>%1 を起動できませんでした。インストールを確認し、Toolvane を再起動してください。</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>完成したアーカイブを破棄</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>別の場所…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>完成したアーカイブの別の保存先を選択</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>作業は中止されました。</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>サンプルを聞く</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>保存できませんでした。入力内容と保存先を確認してから、もう一度お試しください。</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>読み上げた音声を、指定したファイルに保存しました。</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>選択…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>フォルダーを表示(&amp;D)</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>作成したファイルをファイルマネージャーに表示</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>実行中</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>つながる</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>元データ(&amp;S)</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>変換するビデオがまだ指定されていません。</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>音声合成</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>テキストを読み上げられません: espeak-ng がインストールされていません。</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>速度（1 分あたりの単語数）</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>標準の速度に戻す</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>サンプルを聞く</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>テキストを読み上げたり、読み上げた音声を音声ファイルとして保存したりします。</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>読み上げるテキスト</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>読み上げるテキストを入力または貼り付け</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>テキストが長すぎて一度に読み上げられません。分けてください。</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>声</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>元データがまだ指定されていません。まず対象を選択してください。</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>在庫</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>入力する欄はありません。「保存」を押すと空の項目が追加されます。</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>項目</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>在庫の項目には、今のところ番号だけが記録されます。</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>格納のみ（圧縮なし）</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>テキスト(&amp;X)</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>読み上げるテキストがまだありません。まずテキストを入力するか貼り付けてください。</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>バージョンと、開発元のその他のアプリを表示します</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>Web サイト(&amp;W)</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>開発元の Web サイトをブラウザーで開きます</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>全容量</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>ゴミ箱 </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>zip 展開</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>フォルダーを表示(&amp;D)</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>出力フォルダーをファイルマネージャーに表示</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>出力フォルダー</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>新しいフォルダーの作成先になるフォルダー</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>出力フォルダーを選択</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>展開するアーカイブ</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>展開するアーカイブ（拡張子 .zip）</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>展開するアーカイブを選択</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>作業は中止されました。展開できた分は新しいフォルダーにあります。</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>zip アーカイブを、同じ名前の新しいフォルダーに展開します。</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>アーカイブを完全には展開できませんでした。パスワードのない完全な zip アーカイブであることを確認してください。展開できた分は新しいフォルダーにあります。</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>アーカイブを展開しました。出力フォルダーの中に新しいフォルダーがあります。</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>アップデートを確認(&amp;C)</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>アップデートサーバーに問い合わせています…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>ダウンロード(&amp;D)</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 をインストールする準備ができました。</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>ダウンロードしたファイルは検証済みです。保存場所は下に表示されています。</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Toolvane %1 をダウンロードしています。</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>バージョンの一覧の有効期限は %1 でした。新しいバージョンが載っていない可能性があり、新しい一覧の配信が何者かに妨げられている可能性もあります。しばらくしてから、または別のネットワークでもう一度お試しください。</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>バージョンの一覧: %1</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>ダウンロードしたファイルのパス</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 がインストールされています。</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>アップデートのダウンロード</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>前回の確認: %1</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>前回の確認: %1。%2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>アップデートサーバーが設定されていません。</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>設定ファイル %1 の [Addresses] セクションに、開発元のフィードのアドレスを UpdateFeed として記入してください。その後、アップデートを確認してください。</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>この Toolvane は開発元の鍵なしでビルドされています。バージョンの真偽を確認できないため、お知らせの表示だけを行い、ダウンロードは提供されません。</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>このバージョンのリリースノートはありません。</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 はダウンロードされませんでした。</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 は開かれませんでした。</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>変更点</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>新しいバージョンのリリースノート</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>もう一度開く(&amp;O)</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>接続が途中で切れました。ネットワークを確認してから、もう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>サーバーの証明書が有効でないため、サーバーの身元を確認できませんでした。このコンピューターの時計を確認するか、別のネットワークでお試しください。</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>ファイルがなくなったか、検証したものと異なります。もう一度ダウンロードしてください。</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>応答の内容が正しくありません。アップデートサーバーからの応答ではない可能性があります。アドレスを確認するか、別のネットワークでお試しください。</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>受信したデータが、サーバーから通知されたサイズより少なくなっています。もう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>日付がないため、古いコピーの可能性があります。内容は一切使用していません。</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>署名を検証するライブラリ (libsodium) がインストールされていません。インストールしてから、もう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>サーバーから届いたものはバージョンの一覧ではありません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>ファイルを保存できませんでした: %1。ダウンロードフォルダーに書き込めることと空き容量があることを確認してから、もう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>このファイルを開けるプログラムがありませんでした。「フォルダーを表示」でファイルの場所を開けます。</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>以前に受信したものより古いため、新しいものの配信が何者かに妨げられている可能性があります。しばらくしてから、または別のネットワークでもう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>サーバーからエラー %1 が返されました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>中止されました。</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>サーバーから時間内に応答がありませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>サーバーから通知されたサイズまたは上限を超えるデータが届いたため、何も保存していません。</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>応答がありませんでした。ネットワークを確認してから、もう一度お試しください。</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>アドレスが https で始まっていないか、そうでないアドレスに転送されます。正しいアドレスを開発元にお問い合わせください。</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>開発元の署名がないため、内容は一切使用していません。</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>開発元の署名が一致しないため、何者かに変更された可能性があります。何も保存していません。</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 を利用できます。</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>バージョンの一覧の有効期限が切れています。</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>アップデートを確認できませんでした。</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>アップデートサーバーに接続できませんでした。</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>アップデートサーバーの応答を信頼できません。</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 を利用できますが、スキップするように設定されています。</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane は最新です。</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>このバージョンをスキップ(&amp;K)</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>状況</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>中止(&amp;P)</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>必要なときに、Toolvane の新しいバージョンを探します。</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>新しいバージョンがあるか確認してください。</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>スキップを取り消す(&amp;O)</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>すべての権限</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>削除されたグループ</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>現在のグループ: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>保存後: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>グループは変更されません</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>ユーザーは名前とパスワードでログインし、1 つのグループに属します。</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>キャッシュの消去</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>アクセスは許可されています</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>チェックを付けたフォルダーのサイズを調べます</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>チェックを付けたフォルダーを、再確認なしで完全に削除します</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 バイト</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 を解放しました</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 を解放、残りあり: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>ディスクの使用量</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>空き容量わずか</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>アクセスを許可したフォルダー</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>アクセスを許可すると、ホームフォルダーが表示されます</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>ありません</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>停止しました。応答しないフォルダがあったため、途中で打ち切りました。その中にマウントされているものに接続できない可能性があります。</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>システムがこれ以上のスレッドを許可しないため、開始できませんでした。ほかのプログラムを終了してから、もう一度お試しください。</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>フォルダではありません</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>一部を読み取れません</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>途中にリンクがあります</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>マウントされているものがあります</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>権限がありません</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>停止しました</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>何も削除していません: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>ホームフォルダー内の不要なファイルを調べ、チェックを付けたフォルダーを削除します。</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>アクセスは許可されていません</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>この名前のユーザーはすでに存在します。別の名前を指定してください。</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>ユーザーグループ</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>グループは、所属するユーザーが表示および変更できる内容を定めます。</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>グループの権限</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>この名前のグループはすでに存在します。別の名前を指定してください。</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>このグループにはまだユーザーがいます。</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>ユーザーを別のグループに移すか削除してから、グループを削除してください。</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>グループの名前がまだありません。入力してください。</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>グループの名前が長すぎます。100 文字以内で入力してください。</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>ユーザーの名前がまだありません。入力してください。</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>ユーザーの名前が長すぎます。100 文字以内で入力してください。</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>声(&amp;V)</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>ボリューム(&amp;V)</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>ボリュームの名前がまだありません。イメージに表示する名前を入力してください。</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>開発元の Web サイトをブラウザーで開きます</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>左側でツールを選択してください。</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>日常で使うファイルとメディアのツールを 1 か所に。</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>これはホームフォルダーではありません。</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>zip 作成</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>完成したアーカイブを破棄しますか？</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>残す</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>アーカイブはまだ保存されていません。</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>未保存: フォルダーがありません。</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>未保存: 空き容量が足りません。</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>保存の前に中止されました。</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>未保存: 同じ名前の項目があります。</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>未保存: そこには書き込めません。</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>作成するアーカイブ</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>作成するアーカイブ（拡張子 .zip）</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>作成するアーカイブを選択</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>圧縮</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>圧縮するフォルダー</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>圧縮するフォルダー</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>圧縮するフォルダーを選択</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>フォルダー内のすべての項目を 1 つの zip アーカイブにまとめます。</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>アーカイブを作成できませんでした。フォルダーが存在し、空でなく、読み取れることと、ディスクに空き容量があることを確認してください。</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>この名前の項目はすでに存在します。アーカイブに別の名前を指定してください。</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>アーカイブの名前がまだありません。保存先を選択してください。</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>アーカイブを作成しました。</translation>
    </message>
</context>
</TS>
