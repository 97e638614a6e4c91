<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>开发者的应用</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>电子邮件(&amp;E)</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>列表中没有应用。</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>重新加载(&amp;R)</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>关于 Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>版本 %1。日常文件和媒体工具，尽在一处。</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>网站(&amp;W)</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>应用</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>未获得访问授权。</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>授权</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>视频转换</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>输出格式</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>要生成的视频</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>要生成的视频，扩展名为 .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>选择要生成的视频</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_zh_CN.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>要转换的视频</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>要转换的视频</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>选择要转换的视频</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>将视频转换为适合播放设备的格式。</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>更好（体积最小）</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>缓存 </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>清理</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>日常文件和媒体工具，尽在一个窗口。</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>要打开的页面：%1。</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>没有“%1”页面。可用的页面：%2。</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>压缩(&amp;P)</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>转换(&amp;V)</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>视频已转换并保存到您选择的文件中。</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>无法转换视频。请确认源视频完整且有足够的可用空间，然后重试。</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>默认组</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>由 Toolvane 初始创建</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>要删除选中的条目吗？</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>删除后无法恢复。</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>磁盘映像</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>将文件夹中的所有内容制作成磁盘映像 (DMG)。</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>下载 </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>给开发者写邮件</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>更快</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>可用空间</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>生成(&amp;G)</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>无法打开使用指南。请在此处查找：</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>要生成的映像文件</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>要生成的映像，扩展名为 .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>选择要生成的映像文件</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>源文件夹</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>要放入映像的文件夹</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>选择源文件夹</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>卷名</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>打开映像时显示的名称</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>盘点</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>光盘映像</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>将文件夹制作成各种桌面系统都能读取的光盘映像 (ISO)。</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 项，%2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>剩余约 %1 小时</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>剩余约 %1 分钟</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>正在进行的任务</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>显示此任务的页面</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>停止：%1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>登录(&amp;L)</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>登录</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>日志 </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>邮件下载 </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>备注</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>关于 Toolvane(&amp;A)</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>使用指南(&amp;G)</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>记录(&amp;R)</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>您的用户组没有此权限。</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>请以有权打开此页面的用户身份登录，或请人为您的组添加此权限。</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>尚未授权访问您的主文件夹。</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1：失败</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1：已停止</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1：已完成</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>输出(&amp;O)</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>尚未选择输出文件。</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>输出格式(&amp;M)</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>输出文件夹中已有与压缩包同名的项目。请将其移走，或选择其他输出文件夹。</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>尚未选择映像文件。请选择映像的保存位置。</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>两次输入的密码不一致。请两次输入相同的密码。</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>尚未设置密码。请输入密码。</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>密码过长。最多使用 100 个字符。</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>未填文件夹时使用当前文件夹：%1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>此文件夹中已有与压缩包同名的项目。</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>这是文件夹。请加上文件名。</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>这不是文件夹。</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>此文件所在的文件夹不存在。</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>空间可能不足：来源有 %1，仅剩 %2。</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>此文件不存在。</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>此文件夹不存在。</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>此路径从当前文件夹开始：%1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>此文件已存在，将被替换。</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>已有同名的项目。请换一个名称。</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>无法读取。</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>无法写入此处。</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>此文件夹尚不存在，将会创建。</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>权限</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>要进行检查和清理，请再次点击“授权”并选择您的主文件夹。</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>请先点击“授权”并选择您的主文件夹。</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>请再次点击“授权”并选择 </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>请选择扩展名为 .m4v、.mp4、.mpg、.mpeg 或 .avi 的视频。</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>请选择转换后视频的保存位置。</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>供应商</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>正在进行的任务将被停止。已经完成的结果仍会保存到指定位置。</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>继续工作</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>压缩包会保留，下次启动时 Zip 页面会再次提供。</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>仍有任务正在进行。确定要退出吗？</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>已完成的压缩包尚未保存。确定要退出吗？</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>语速(&amp;R)</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>朗读(&amp;D)</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>数据库正忙：另一个程序正在使用它。请稍后重新打开此页。</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>此条目在这里打开期间被其他人更改了。</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>删除(&amp;D)…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>此条目在这里打开期间被其他人删除了。</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>编辑(&amp;E)…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>还没有条目。</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>登录(&amp;L)…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>仍然保存(&amp;S)</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>您可以按此处显示的内容保存，也可以返回而不保存。</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>条目保存在 %1。</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>自 %2 起无法访问 %1 上的条目;现在保存的内容会丢失。</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>库存(&amp;S)</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>记录</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>无法读取条目。请检查数据库文件，然后重新打开此页。</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>用户组(&amp;G)</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>用户(&amp;U)</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>重复密码</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>恢复默认语速</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>无法启动 %1。请确认它已安装，然后重新启动 Toolvane。</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>丢弃已完成的压缩包</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>其他位置…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>为已完成的压缩包选择其他位置</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>任务已停止。</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>试听</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>无法保存。请检查输入的内容和保存位置，然后重试。</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>语音已保存到您选择的文件中。</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>选择…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>在文件夹中显示(&amp;D)</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>在文件管理器中显示生成的文件</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>进行中</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>保持联系</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>来源(&amp;S)</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>尚未选择要转换的视频。</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>语音合成</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>无法朗读文本：未安装 espeak-ng。</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>语速（每分钟词数）</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>恢复默认语速</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>试听</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>朗读文本，或将朗读内容保存为声音文件。</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>要朗读的文本</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>输入或粘贴要朗读的文本</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>文本太长，无法一次朗读。请分成几段。</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>嗓音</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>尚未选择来源。请先选择要处理的对象。</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>库存</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>没有需要填写的内容。点击“保存”将添加一个空白条目。</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>条目</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>库存条目目前只包含编号。</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>仅存储（不压缩）</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>文本(&amp;X)</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>还没有要朗读的文本。请先输入或粘贴文本。</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>显示版本以及开发者的其他应用</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>网站(&amp;W)</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>在浏览器中打开开发者的网站</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>总空间</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>回收站 </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>解压 zip</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>显示文件夹(&amp;D)</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>在文件管理器中显示输出文件夹</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>输出文件夹</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>用于存放新文件夹的文件夹</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>选择输出文件夹</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>要解压的压缩包</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>要解压的压缩包，扩展名为 .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>选择要解压的压缩包</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>任务已停止。已解压的内容在新文件夹中。</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>将 zip 压缩包解压到与其同名的新文件夹中。</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>无法完全解压此压缩包。请确认它是完整且没有密码的 zip 压缩包。目前已解压的内容在新文件夹中。</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>压缩包已解压。新文件夹位于输出文件夹中。</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>检查更新(&amp;C)</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>正在查询更新服务器…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>下载(&amp;D)</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 已可安装。</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>下载的文件已通过验证。其路径见下方。</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>正在下载 Toolvane %1。</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>版本列表的有效期到 %1 为止，因此可能缺少更新的版本。可能有人阻止了新列表的传送。请稍后重试，或换一个网络。</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>版本列表：%1。</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>下载文件的路径</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>已安装 Toolvane %1。</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>下载更新</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>上次检查：%1。</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>上次检查：%1。%2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>未设置更新服务器。</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>请在设置文件 %1 的 [Addresses] 部分，将开发者的更新源地址写为 UpdateFeed 的值，然后检查更新。</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>此 Toolvane 在构建时未包含开发者的密钥，无法验证版本的真伪，因此只显示公布的内容，不提供下载。</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>此版本没有附带说明。</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>未完成 Toolvane %1 的下载。</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>未打开 Toolvane %1。</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>新变化</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>新版本说明</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>再次打开(&amp;O)</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>连接已中断。请检查网络，然后重试。</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>服务器无法证明其身份：证书无效。请检查此计算机的时间，或换一个网络。</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>文件已不存在，或不是通过验证的那个文件。请重新下载。</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>回应无法识别，可能并非来自更新服务器。请检查其地址，或换一个网络。</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>收到的数据少于服务器声明的大小。请重试。</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>其中没有日期，可能是旧的副本，因此未使用其中任何内容。</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>未安装用于验证签名的库 (libsodium)。请安装后重试。</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>服务器发送的内容不是版本列表。请稍后重试。</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>无法保存文件：%1。请确认“下载”文件夹可写且有足够空间，然后重试。</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>没有程序能打开此文件。请使用“在文件夹中显示”找到它。</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>收到的内容比您之前收到的更旧，可能有人阻止了新内容的传送。请稍后重试，或换一个网络。</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>服务器返回错误 %1。请稍后重试。</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>服务器响应时间过长。请稍后重试。</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>服务器发送的数据超过其声明的大小或允许的上限，因此未保留任何内容。</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>没有收到回应。请检查网络，然后重试。</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>地址不是以 https 开头，或会跳转到不以其开头的地址。请向开发者索取正确的地址。</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>其中没有开发者的签名，因此未使用任何内容。</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>开发者的签名不匹配，内容可能已被他人改动，因此未保留任何内容。</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 现已可用。</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>版本列表已过期。</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>检查更新失败。</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>无法连接更新服务器。</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>更新服务器的回应不可信。</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 现已可用，但您选择了跳过该版本。</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane 已是最新版本。</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>跳过此版本(&amp;K)</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>停止(&amp;P)</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>仅在您需要时查找 Toolvane 的新版本。</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>请检查是否有新版本。</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>重新提供(&amp;O)</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>所有权限</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>已删除的组</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>当前的组：%1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>保存后：%1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>保持当前组不变</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>每个用户使用用户名和密码登录，并属于一个组。</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>缓存清理</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>已授权访问</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>测量所勾选文件夹的大小</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>永久删除所勾选的文件夹，不再询问</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 字节</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>已释放 %1</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>已释放 %1，其余保留：%2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>已用磁盘空间</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>即将用满</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>已授权的文件夹</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>授权访问后，此处显示您的主文件夹</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>不存在</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>已停止。有一个文件夹没有响应，已被搁置。其中挂载的内容可能无法访问。</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>无法开始，因为系统不允许创建更多线程。请关闭其他程序后重试。</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>不是文件夹</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>部分内容无法读取</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>路径经过链接</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>那里有挂载的内容</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>没有权限</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>未删除任何内容：%1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>测量主文件夹中多余文件的大小，并删除您勾选的文件夹。</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>未授权访问</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>已有同名的用户。请换一个名称。</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>用户组</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>组决定其中的用户可以查看和更改哪些内容。</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>组的权限</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>已有同名的组。请换一个名称。</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>该组中仍有用户。</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>请先将其中的用户移到其他组或删除，再删除该组。</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>组还没有名称。请输入名称。</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>组的名称过长。最多使用 100 个字符。</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>用户还没有名称。请输入名称。</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>用户的名称过长。最多使用 100 个字符。</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>查看</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>嗓音(&amp;V)</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>卷(&amp;V)</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>卷还没有名称。请输入映像要显示的名称。</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>在浏览器中打开开发者的网站</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>请在左侧选择一个工具。</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>日常文件和媒体工具，尽在一处。</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>这不是您的主文件夹。</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>压缩为 zip</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>要丢弃已完成的压缩包吗？</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>压缩包尚未保存。</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>未保存：文件夹不存在。</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>未保存：空间不足。</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>保存前已停止。</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>未保存：名称已被占用。</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>未保存：无法写入该位置。</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>要生成的压缩包</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>要生成的压缩包，扩展名为 .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>选择要生成的压缩包</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>压缩</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>要压缩的文件夹</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>要压缩的文件夹</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>选择要压缩的文件夹</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>将文件夹中的所有内容打包成一个 zip 压缩包。</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>无法生成压缩包。请确认文件夹存在、非空且可读取，并且磁盘上有足够空间。</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>已有同名的项目。请为压缩包换一个名称。</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>压缩包还没有名称。请选择保存位置。</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>压缩包已生成。</translation>
    </message>
</context>
</TS>
