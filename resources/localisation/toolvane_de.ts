<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Anwendungen des Herstellers</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;E-Mail</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>Es sind keine Anwendungen aufgeführt.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Info zu Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Version %1. Alltägliche Werkzeuge für Dateien und Medien an einem Ort.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Web</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>Der Zugriff wurde nicht erlaubt.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Erlauben</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Video umwandeln</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Zu erstellendes Video</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>Das zu erstellende Video mit der Endung .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Zu erstellendes Video auswählen</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_de.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Umzuwandelndes Video</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>Das umzuwandelnde Video</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Umzuwandelndes Video auswählen</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Wandelt ein Video in ein Format um, das zum Wiedergabegerät passt.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Besser (am kleinsten)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Caches </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Aufräumen</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Alltägliche Werkzeuge für Dateien und Medien in einem Fenster.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>Die Seite, die geöffnet werden soll: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>Es gibt keine Seite „%1“. Vorhanden sind: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>&amp;Komprimierung</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>&amp;Umwandeln</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>Das Video wurde umgewandelt. Sie finden es in der Datei, die Sie gewählt haben.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>Das Video konnte nicht umgewandelt werden. Prüfen Sie, ob die Quelle ein vollständiges Video ist und genug Speicherplatz frei ist, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Standardgruppe</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Von Toolvane für den Anfang angelegt</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Den ausgewählten Eintrag löschen?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>Er lässt sich danach nicht wiederherstellen.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Datenträgerabbild</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Erstellt ein Datenträgerabbild (DMG) mit dem gesamten Inhalt eines Ordners.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Downloads </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Schreibt eine E-Mail an den Hersteller</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Frei</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>&amp;Erstellen</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>Das Handbuch konnte nicht geöffnet werden. Sie finden es hier:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Zu erstellende Abbilddatei</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>Das zu erstellende Abbild mit der Endung .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Zu erstellende Abbilddatei auswählen</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Quellordner</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>Der Ordner, der in das Abbild soll</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Quellordner auswählen</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Name des Datenträgers</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>Der Name, den das Abbild nach dem Öffnen zeigt</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Inventar</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>CD-Abbild</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Erstellt aus einem Ordner ein CD-Abbild (ISO), das jedes Desktop-System lesen kann.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 Objekte, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>noch etwa %1 Std.</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>noch etwa %1 Min.</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Laufende Vorgänge</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Zeigt die Seite dieses Vorgangs</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Stoppen: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Anmelden</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Protokolle </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Mail-Downloads </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Notiz</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>&amp;Info zu Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Verwaltung</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Ihre Benutzergruppe hat dieses Recht nicht.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Melden Sie sich als Benutzer an, der diese Seite öffnen darf, oder bitten Sie darum, dass Ihre Gruppe dieses Recht erhält.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>Der Zugriff auf Ihren persönlichen Ordner ist noch nicht erlaubt.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: fehlgeschlagen</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: gestoppt</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: fertig</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Aktion</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>&amp;Ausgabe</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Es ist noch keine Ausgabedatei angegeben.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>Ausgabe&amp;format</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>Im Ausgabeordner liegt schon etwas mit dem Namen des Archivs. Verschieben Sie es oder wählen Sie einen anderen Ausgabeordner.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Es ist noch keine Abbilddatei angegeben. Wählen Sie, wo das Abbild gespeichert werden soll.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>Die beiden Passwörter unterscheiden sich. Geben Sie zweimal das gleiche Passwort ein.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Es ist noch kein Passwort angegeben. Geben Sie eines ein.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>Das Passwort ist zu lang. Verwenden Sie höchstens 100 Zeichen.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Ohne Ordner gilt der aktuelle: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>In diesem Ordner liegt schon etwas mit dem Namen des Archivs.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>Das ist ein Ordner. Fügen Sie einen Dateinamen an.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>Das ist kein Ordner.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>Den Ordner für diese Datei gibt es nicht.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>Der Platz reicht vielleicht nicht: Die Quelle hat %1, frei sind nur %2.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Dieser Pfad beginnt im aktuellen Ordner: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Diese Datei gibt es schon. Sie wird ersetzt.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Etwas mit diesem Namen gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Das kann nicht gelesen werden.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Hier kann nichts gespeichert werden.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Diesen Ordner gibt es noch nicht. Er wird angelegt.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(Rechte)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Um zu prüfen und aufzuräumen, klicken Sie noch einmal auf „Erlauben“ und wählen Sie Ihren persönlichen Ordner.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Klicken Sie zuerst auf „Erlauben“ und wählen Sie Ihren persönlichen Ordner.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Klicken Sie noch einmal auf „Erlauben“ und wählen Sie diesen Ordner: </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Wählen Sie ein Video mit der Endung .m4v, .mp4, .mpg, .mpeg oder .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Wählen Sie, wo das umgewandelte Video gespeichert werden soll.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Lieferant</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>Laufende Vorgänge werden gestoppt. Ein schon fertiges Ergebnis wird noch an seinem Ziel abgelegt.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Weiterarbeiten</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Es bleibt erhalten. Die Seite Zip bietet es beim nächsten Start wieder an.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Es läuft noch etwas. Trotzdem beenden?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Ein fertiges Archiv ist noch nicht gespeichert. Trotzdem beenden?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>Te&amp;mpo</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>V&amp;orlesen</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>Die Datenbank ist belegt: Ein anderes Programm benutzt sie. Öffnen Sie diese Seite gleich noch einmal.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Jemand anderes hat diesen Eintrag geändert, während er hier geöffnet war.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>Lös&amp;chen…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Jemand anderes hat diesen Eintrag gelöscht, während er hier geöffnet war.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>B&amp;earbeiten…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Es gibt noch keine Einträge.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Anmelden…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Trotzdem speichern</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>Sie können ihn so speichern, wie Sie ihn hier sehen, oder zurückgehen, ohne zu speichern.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>Die Einträge liegen bei %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>Die Einträge bei %1 sind seit %2 nicht erreichbar; was Sie jetzt speichern, ginge verloren.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>&amp;Lagerbestand</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Verwaltung</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>Die Einträge lassen sich nicht lesen. Prüfen Sie die Datenbankdatei und öffnen Sie diese Seite dann noch einmal.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>Benutzer&amp;gruppen</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>&amp;Benutzer</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Passwort wiederholen</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Zum üblichen Tempo zurückkehren</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>%1 konnte nicht gestartet werden. Prüfen Sie, ob es installiert ist, und starten Sie Toolvane neu.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Das fertige Archiv verwerfen</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Anderer Ort…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Einen anderen Ort für das fertige Archiv wählen</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>Der Vorgang wurde gestoppt.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Hörprobe abspielen</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>Das Speichern war nicht möglich. Prüfen Sie Ihre Eingaben und den Speicherort und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>Die Sprachausgabe wurde gespeichert. Sie finden sie in der Datei, die Sie gewählt haben.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Auswählen…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>Im O&amp;rdner zeigen</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Die erstellte Datei in der Dateiverwaltung zeigen</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>Läuft</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Kontakt</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>&amp;Quelle</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Es ist noch kein umzuwandelndes Video angegeben.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Sprachausgabe</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>Der Text kann nicht gesprochen werden: espeak-ng ist nicht installiert.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Tempo in Wörtern pro Minute</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Zum üblichen Tempo zurückkehren</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Hörprobe abspielen</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Liest einen Text vor oder speichert den gesprochenen Text als Audiodatei.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Vorzulesender Text</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Geben Sie den vorzulesenden Text ein oder fügen Sie ihn ein</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Dieser Text ist zu lang, um am Stück gesprochen zu werden. Teilen Sie ihn auf.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Es ist noch keine Quelle angegeben. Wählen Sie zuerst aus, was bearbeitet werden soll.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Lagerbestand</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>Hier gibt es nichts auszufüllen. „Speichern“ legt einen leeren Eintrag an.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Einträge im Lagerbestand enthalten bisher nur ihre Nummer.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Ohne Komprimierung</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Es gibt noch keinen Text zum Vorlesen. Geben Sie zuerst einen Text ein oder fügen Sie ihn ein.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Zeigt die Version und was der Hersteller sonst noch anbietet</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>Web&amp;site</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Öffnet die Website des Herstellers im Browser</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Gesamt</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Papierkorb </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Entpacken</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>O&amp;rdner zeigen</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Den Ausgabeordner in der Dateiverwaltung zeigen</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>Der Ordner, in dem der neue Ordner angelegt wird</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Ausgabeordner auswählen</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Zu entpackendes Archiv</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>Das zu entpackende Archiv mit der Endung .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Zu entpackendes Archiv auswählen</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>Der Vorgang wurde gestoppt. Was entpackt wurde, liegt im neuen Ordner.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Entpackt ein ZIP-Archiv in einen neuen Ordner, der nach dem Archiv benannt ist.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>Das Archiv konnte nicht vollständig entpackt werden. Prüfen Sie, ob es ein vollständiges ZIP-Archiv ohne Passwort ist. Was bisher entpackt wurde, liegt im neuen Ordner.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>Das Archiv wurde entpackt. Der neue Ordner liegt im Ausgabeordner.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>Nach &amp;Updates suchen</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Der Update-Server wird abgefragt…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>Herunter&amp;laden</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 kann jetzt installiert werden.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>Die heruntergeladene Datei wurde geprüft. Ihr Pfad steht unten.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Toolvane %1 wird heruntergeladen.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>Die Liste der Versionen galt bis %1. Deshalb können neuere Versionen darin fehlen. Möglicherweise hält jemand neuere Listen zurück. Versuchen Sie es später oder in einem anderen Netzwerk noch einmal.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Liste der Versionen: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Pfad der heruntergeladenen Datei</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 ist installiert.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Update wird heruntergeladen</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Letzte Suche: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Letzte Suche: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>Es ist kein Update-Server eingerichtet.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Tragen Sie die Adresse des Update-Feeds, die Sie vom Hersteller erhalten, in der Einstellungsdatei %1 als UpdateFeed im Abschnitt [Addresses] ein. Suchen Sie danach nach Updates.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Diese Fassung von Toolvane wurde ohne den Schlüssel des Herstellers gebaut. Sie kann nicht prüfen, ob Versionen echt sind. Deshalb zeigt sie nur Ankündigungen und bietet keinen Download an.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>Zu dieser Version gibt es keine Hinweise.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 wurde nicht heruntergeladen.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 wurde nicht geöffnet.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Neuerungen</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Hinweise zur neuen Version</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>&amp;Erneut öffnen</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>Die Verbindung brach ab. Prüfen Sie Ihr Netzwerk und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>Der Server konnte sich nicht ausweisen: Sein Zertifikat ist nicht gültig. Prüfen Sie die Uhr dieses Computers oder versuchen Sie es in einem anderen Netzwerk.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>Die Datei ist nicht mehr da oder nicht die, die geprüft wurde. Laden Sie sie noch einmal herunter.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>Die Antwort ergibt keinen Sinn. Vielleicht kommt sie nicht vom Update-Server. Prüfen Sie dessen Adresse oder versuchen Sie es in einem anderen Netzwerk.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Es kam weniger an, als der Server angekündigt hatte. Versuchen Sie es noch einmal.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>Das Datum fehlt, es könnte also eine alte Kopie sein. Nichts davon wurde verwendet.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>Die Bibliothek zum Prüfen von Signaturen (libsodium) ist nicht installiert. Installieren Sie sie und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>Was der Server gesendet hat, ist keine Liste von Versionen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>Die Datei konnte nicht gespeichert werden: %1. Prüfen Sie, ob in den Ordner „Downloads“ geschrieben werden kann und dort genug Platz ist, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Kein Programm konnte die Datei öffnen. Mit „Im Ordner zeigen“ gelangen Sie zu ihr.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>Die Angaben sind älter als die zuvor erhaltenen. Möglicherweise hat jemand neuere zurückgehalten. Versuchen Sie es später oder in einem anderen Netzwerk noch einmal.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>Der Server hat mit dem Fehler %1 geantwortet. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>Der Vorgang wurde gestoppt.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>Der Server hat zu lange nicht geantwortet. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>Der Server hat mehr gesendet, als er angekündigt hatte oder als zulässig ist. Deshalb wurde nichts davon behalten.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Es kam keine Antwort. Prüfen Sie Ihr Netzwerk und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>Die Adresse beginnt nicht mit https oder führt zu einer Adresse, die nicht so beginnt. Fragen Sie den Hersteller nach der richtigen Adresse.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>Die Signatur des Herstellers fehlt. Deshalb wurde nichts davon verwendet.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>Die Signatur des Herstellers passt nicht. Möglicherweise hat jemand anderes etwas verändert. Nichts davon wurde behalten.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 ist verfügbar.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>Die Liste der Versionen ist abgelaufen.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>Die Suche nach Updates ist fehlgeschlagen.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>Der Update-Server war nicht erreichbar.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>Der Antwort des Update-Servers ist nicht zu trauen.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 ist verfügbar, aber Sie wollten diese Version überspringen.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane ist auf dem neuesten Stand.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>Version ü&amp;berspringen</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>Sto&amp;ppen</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Sucht nach einer neueren Version von Toolvane, wann immer Sie es möchten.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Sehen Sie nach, ob es eine neuere Version gibt.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>Wieder a&amp;nbieten</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Alle Rechte</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Eine gelöschte Gruppe</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Gruppe jetzt: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Nach dem Speichern: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>Die Gruppe bleibt, wie sie ist</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Jeder Benutzer meldet sich mit Name und Passwort an und gehört zu einer Gruppe.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Speicherplatz</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Zugriff erlaubt</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Misst, wie viel Platz die angekreuzten Ordner belegen</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Löscht die angekreuzten Ordner endgültig und ohne Rückfrage</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 Bytes</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 frei geworden</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 frei, Rest bleibt: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Belegter Speicherplatz</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Fast voll</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Ordner mit erlaubtem Zugriff</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>Ihr persönlicher Ordner, sobald Sie den Zugriff erlaubt haben</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Nicht vorhanden</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Angehalten. Ein Ordner hat nicht geantwortet und wurde zurückgelassen. Etwas, das darin eingehängt ist, ist vielleicht nicht erreichbar.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>Der Vorgang konnte nicht beginnen, weil das System keine weiteren Threads zulässt. Schließen Sie andere Programme und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>Kein Ordner</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Ein Teil ist nicht lesbar</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>der Weg führt über eine Verknüpfung</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>dort ist etwas eingehängt</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Nichts gelöscht: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Misst, was sich in Ihrem persönlichen Ordner angesammelt hat, und löscht die Ordner, die Sie ankreuzen.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Zugriff nicht erlaubt</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Einen Benutzer mit diesem Namen gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Benutzergruppe</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Eine Gruppe legt fest, was ihre Benutzer sehen und ändern dürfen.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Rechte der Gruppe</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Eine Gruppe mit diesem Namen gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>Die Gruppe hat noch Benutzer.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Verschieben Sie diese Benutzer in eine andere Gruppe oder löschen Sie sie. Löschen Sie danach die Gruppe.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>Die Gruppe hat noch keinen Namen. Geben Sie einen ein.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>Der Name der Gruppe ist zu lang. Verwenden Sie höchstens 100 Zeichen.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>Der Benutzer hat noch keinen Namen. Geben Sie einen ein.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>Der Name des Benutzers ist zu lang. Verwenden Sie höchstens 100 Zeichen.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>Ansehen</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>St&amp;imme</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>Date&amp;nträger</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>Der Datenträger hat noch keinen Namen. Geben Sie den Namen ein, den das Abbild zeigen soll.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Öffnet die Website des Herstellers im Browser</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Wählen Sie links ein Werkzeug aus.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Alltägliche Werkzeuge für Dateien und Medien an einem Ort.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>Das ist nicht Ihr persönlicher Ordner.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Packen</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Das fertige Archiv verwerfen?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>Das Archiv ist noch nicht gespeichert.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Nicht gespeichert: Der Ordner fehlt.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Nicht gespeichert: Der Platz reicht nicht.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Vor dem Speichern gestoppt.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Nicht gespeichert: Der Name ist vergeben.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Nicht gespeichert: Dort ist kein Schreiben möglich.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Zu erstellendes Archiv</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>Das zu erstellende Archiv mit der Endung .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Zu erstellendes Archiv auswählen</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Komprimierung</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Zu packender Ordner</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>Der zu packende Ordner</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Zu packenden Ordner auswählen</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Packt den gesamten Inhalt eines Ordners in ein ZIP-Archiv.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>Das Archiv konnte nicht erstellt werden. Prüfen Sie, ob der Ordner vorhanden, nicht leer und lesbar ist und ob auf dem Datenträger genug Platz ist.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Etwas mit diesem Namen gibt es schon. Wählen Sie einen anderen Namen für das Archiv.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>Das Archiv hat noch keinen Namen. Wählen Sie, wo es gespeichert werden soll.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>Das Archiv ist fertig.</translation>
    </message>
</context>
</TS>
