<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Applications of the maker</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>No applications are listed.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>&amp;Reload</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>About Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Version %1. Everyday file and media tools in one place.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Web</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>Access was not granted.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Authorize</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>AV Convert</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Output format</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Video to make</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>The video to make, ending in .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Select the video to make</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Video to convert</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>The video to convert</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Select the video to convert</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Converts a video into a format that suits the device that is to play it.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Better (smallest)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Caches </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Check</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Clean</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>&amp;Clear</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Everyday file and media tools in one window.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Show this help.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>The page to open: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page "%1". These are the pages: %2.</source>
        <translation>There is no page "%1". These are the pages: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Show the version.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>Com&amp;pression</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>Con&amp;vert</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>The video was converted. You find it in the file that you chose.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Default Group</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Made by Toolvane for a start</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Delete the selected entry?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>It cannot be brought back.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Disk Image</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Makes a disk image (DMG) of everything in a folder.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Downloads </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Writes to the maker</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Faster</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Free space</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>General</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>&amp;Generate</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>The guide could not be opened. Look for it here:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Icon</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Image file to make</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>The image to make, ending in .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Select the image file to make</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Source folder</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>The folder to put into the image</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Select the source folder</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Volume name</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>The name that the image shows when it is opened</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Inventory</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>CD Image</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Makes a CD image (ISO) of a folder that every desktop system can read.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 items, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>%1 left</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>about %1 h left</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>about %1 min left</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Running work</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Shows the page of this run</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Stop: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Log In</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Log In</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>User name</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Logs </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Mail downloads </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Memo</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>&amp;About Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Records</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Tools</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Your user group does not have this right.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Log in as somebody who may open this page, or ask for the right to be added to your group.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>Access to your home folder is not granted yet.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1 failed</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1 was stopped</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1 is finished</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>&amp;Output</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>There is no output file yet.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>Output For&amp;mat</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>There is no image file to write to yet. Choose where the image goes.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>The two passwords differ. Enter the same password twice.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>There is no password yet. Enter one.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>The password is too long. Use at most 100 characters.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Without a folder, the current one is used: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>This folder already holds an item with the archive's name.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>This is a folder. Add the name of a file.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>This is not a folder.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>The folder for this file does not exist.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>There may not be enough room: the source has %1, only %2 are free.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>This file does not exist.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>This folder does not exist.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>This path starts in the current folder: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>This file exists and will be replaced.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Something with this name already exists. Choose another name.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>This cannot be read.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Nothing can be written here.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>This folder does not exist yet. It will be made.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>Rights</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>To check and clean, press Authorize again and choose your home folder.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Press Authorize first and choose your home folder.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Press Authorize again and choose </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Choose where the converted video goes.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Product</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Provider</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>What runs now is stopped. A result that is already finished is still brought to its place.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Keep Working</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>It is kept. The Zip page offers it again when Toolvane starts next.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Something is still running. Quit anyway?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>A finished archive has not been saved yet. Quit anyway?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>&amp;Rate</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>Rea&amp;d</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Add…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>The database is busy: another program is using it. Open this page again in a moment.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Somebody else changed this entry while it was open here.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>&amp;Delete…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Somebody else deleted this entry while it was open here.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;Edit…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>There are no entries yet.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Log In…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Save Anyway</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>You can save it as you see it here, or go back without saving.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>The records are kept at %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>The records at %1 cannot be reached since %2; what you save now would be lost.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>&amp;Stock</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Records</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>The records cannot be read. Check the database file, then open this page again.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>User &amp;Groups</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>&amp;Users</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Repeat password</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Back to the usual rate</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>%1 could not be started. Check that it is installed, then start Toolvane again.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Discard the finished archive</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Another Place…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Choose another place for the finished archive</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>The run was stopped.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Hear a sample</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>It could not be saved. Check what you entered and where it goes, then try again.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>The speech was saved. You find it in the file that you chose.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Select…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>Show in Fol&amp;der</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Show the file that was made in the file manager</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>Working</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Keep in Touch</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>&amp;Source</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>There is no video to convert yet.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Speech Synthesis</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>The text cannot be spoken: espeak-ng is not installed.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Rate in words per minute</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Back to the usual rate</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Hear a sample</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Reads a text aloud, or saves the spoken text as a sound file.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Text to read aloud</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Type or paste the text to read aloud</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>This text is too long to be spoken at once. Take it in parts.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>There is no source yet. Choose what to work on first.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Stock</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>There is nothing to fill in. Save stores a blank entry.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Entry</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Stock entries carry nothing but their number so far.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Store (no compression)</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>There is no text to read yet. Type or paste one first.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>About</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Shows the version, and what else the maker has to offer</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Toolbar</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>&amp;Web Site</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Opens the maker's web site in your browser</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Total space</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Trash </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Unzip</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>Show Fol&amp;der</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Show the output folder in the file manager</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Output folder</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>The folder in which the new folder is made</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Select the output folder</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Archive to unpack</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>The archive to unpack, ending in .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Select the archive to unpack</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>The run was stopped. What was unpacked is in the new folder.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Unpacks a zip archive into a new folder that is named after it.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>The archive was unpacked. The new folder is in the output folder.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>&amp;Check for Updates</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Asking the update server…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>&amp;Download</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 is ready to be installed.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>The download was checked. Its path is below.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Toolvane %1 is being downloaded.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>List of versions: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Path of the downloaded file</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 is installed.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Downloading an update</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Last check: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Last check: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>No update server is set up.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>No notes come with this version.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 was not downloaded.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 was not opened.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>What Is New</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Notes of the new version</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>&amp;Open Again</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>The connection broke off. Check your network and try again.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>The file is gone, or it is not the one that was checked. Download it again.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Less arrived than the server had announced. Try again.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>It bears no date, so it may be an old copy. Nothing of it was used.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>The library that checks signatures (libsodium) is not installed. Install it and try again.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>What the server sent is no list of versions. Try again later.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>No program here could open the file. Use Show in Folder to get to it.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>The server answered with the error %1. Try again later.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>It was stopped.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>The server took too long to answer. Try again later.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>The server sent more than it had announced or more than is allowed, so nothing was kept.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Nothing answered. Check your network and try again.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>It does not bear the maker's signature, so nothing of it was used.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 is available.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>The list of versions has expired.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>The check for updates failed.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>The update server could not be reached.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>The answer of the update server cannot be trusted.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 is available, but you chose to skip it.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane is up to date.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>S&amp;kip This Version</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>Sto&amp;p</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Looks for a newer version of Toolvane, whenever you ask for it.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Check whether there is a newer version.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>&amp;Offer It Again</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>User</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>All rights</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>A deleted group</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Group now: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>After saving: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>The group stays as it is</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Each user logs in with a name and a password and belongs to one group.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>User Cache</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Access granted</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Measures the ticked folders</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Deletes the ticked folders for good, without asking again</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 bytes</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 freed</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 freed, some stayed: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Used disk space</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Nearly full</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Granted folder</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>Your home folder, once you have granted access to it</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Not there</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>This could not start, because the system allows no more threads. Close other programs and try again.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>Not a folder</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Some of it cannot be read</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>it is reached through a link</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>something is mounted there</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>no permission</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>stopped</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Nothing deleted: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Measures the clutter in your home folder and deletes the folders that you tick.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Access not granted</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Cannot be read</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>A user with this name already exists. Choose another name.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>User Group</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>A group says what its users may see and change.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Rights of the group</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>A group with this name already exists. Choose another name.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>The group still has users.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Move its users to another group or delete them, then delete the group.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>The group has no name yet. Enter one.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>The group's name is too long. Use at most 100 characters.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>The user has no name yet. Enter one.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>The user's name is too long. Use at most 100 characters.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>View</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>&amp;Voice</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>The volume has no name yet. Enter the name that the image is to show.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Opens the maker's web site in your browser</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Choose a tool on the left.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Everyday file and media tools in one place.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>This is not your home folder.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Discard the finished archive?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Keep</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>The archive is not saved yet.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Not saved: the folder does not exist.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Not saved: there is not enough room.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Stopped before it was saved.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Not saved: the name is taken.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Not saved: nothing can be written there.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Archive to make</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>The archive to make, ending in .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Select the archive to make</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Folder to pack</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>The folder to pack</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Select the folder to pack</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Packs everything inside a folder into one zip archive.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Something with this name already exists. Choose another name for the archive.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>The archive has no name yet. Choose where to save it.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>The archive is ready.</translation>
    </message>
</context>
</TS>
