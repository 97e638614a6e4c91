<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Applicazioni dello sviluppatore</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>Nessuna applicazione in elenco.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>&amp;Ricarica</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Informazioni su Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Versione %1. Strumenti di ogni giorno per file e contenuti multimediali, tutti in un unico posto.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Web</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Applicazioni</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>L’accesso non è stato autorizzato.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Autorizza</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Converti video</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Formato di output</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Video da creare</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>Il video da creare, con estensione .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Scegli il video da creare</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_it.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Video da convertire</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>Il video da convertire</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Scegli il video da convertire</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Converte un video in un formato adatto al dispositivo su cui riprodurlo.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Migliore (dimensione minima)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Cache </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Analizza</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Pulisci</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>S&amp;vuota</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Strumenti di ogni giorno per file e contenuti multimediali, tutti in una finestra.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>La pagina da aprire: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>La pagina «%1» non esiste. Le pagine disponibili sono: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>Com&amp;pressione</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>Con&amp;verti</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>Il video è stato convertito. Si trova nel file scelto.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>Impossibile convertire il video. Verificare che l’origine sia un video completo e che ci sia abbastanza spazio libero, quindi riprovare.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Gruppo predefinito</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Creato da Toolvane per iniziare</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Eliminare la voce selezionata?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>Non sarà possibile recuperarla.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Immagine disco</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Crea un’immagine disco (DMG) con tutto il contenuto di una cartella.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Scaricati </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Scrive un’e-mail allo sviluppatore</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Più veloce</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Spazio libero</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>&amp;Crea</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>Impossibile aprire la guida. Si trova qui:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>File immagine da creare</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>L’immagine da creare, con estensione .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Scegli il file immagine da creare</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Cartella di origine</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>La cartella da inserire nell’immagine</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Scegli la cartella di origine</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Nome del volume</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>Il nome che l’immagine mostra all’apertura</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Inventario</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>Immagine CD</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Crea da una cartella un’immagine CD (ISO) leggibile da qualsiasi sistema desktop.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 elementi, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>ancora %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>ancora circa %1 h</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>ancora circa %1 min</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Attività in corso</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Mostra la pagina di questa attività</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Interrompi: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Accedi</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Accesso</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Nome utente</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Registri </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Allegati scaricati </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>&amp;Informazioni su Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Guida all’uso</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Gestione</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Il proprio gruppo di utenti non ha questo permesso.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Accedere come un utente che può aprire questa pagina o chiedere che il permesso sia aggiunto al proprio gruppo.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>L’accesso alla cartella Home non è ancora autorizzato.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: attività non riuscita</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: attività interrotta</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: attività completata</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Operazione</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>&amp;Output</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Non è ancora stato indicato il file di output.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>For&amp;mato di output</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>La cartella di output contiene già un elemento con il nome dell’archivio. Spostarlo o scegliere un’altra cartella di output.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Non è ancora stato indicato il file immagine. Scegliere dove salvare l’immagine.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>Le due password sono diverse. Inserire due volte la stessa password.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Non è ancora stata indicata la password. Inserirne una.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>La password è troppo lunga. Usare al massimo 100 caratteri.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Senza una cartella si usa quella attuale: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>Questa cartella contiene già un elemento con il nome dell’archivio.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>Questa è una cartella. Aggiungere il nome di un file.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>Questa non è una cartella.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>La cartella di questo file non esiste.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>Lo spazio potrebbe non bastare: l’origine ha %1, liberi solo %2.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Questo file non esiste.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Questa cartella non esiste.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Questo percorso parte dalla cartella attuale: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Questo file esiste e sarà sostituito.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Esiste già un elemento con questo nome. Scegliere un altro nome.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Questo elemento non può essere letto.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Qui non si può scrivere nulla.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Questa cartella non esiste ancora. Sarà creata.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(permessi)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Per analizzare e pulire, fare clic di nuovo su «Autorizza» e scegliere la cartella Home.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Fare prima clic su «Autorizza» e scegliere la cartella Home.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Fare clic di nuovo su «Autorizza» e scegliere questa cartella: </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Scegliere un video con estensione .m4v, .mp4, .mpg, .mpeg o .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Scegliere dove salvare il video convertito.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Prodotto</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Fornitore</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>Le attività in corso saranno interrotte. Un risultato già pronto sarà comunque salvato nella sua destinazione.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Continua</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Viene conservato. La pagina Zip lo proporrà al prossimo avvio.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Ci sono ancora attività in corso. Uscire comunque?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Un archivio pronto non è ancora stato salvato. Uscire comunque?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>Velo&amp;cità</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>&amp;Leggi</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Aggiungi…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>Il database è occupato: lo sta usando un altro programma. Riaprire questa pagina tra un momento.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Qualcun altro ha modificato questa voce mentre era aperta qui.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>E&amp;limina…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Qualcun altro ha eliminato questa voce mentre era aperta qui.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;Modifica…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Non ci sono ancora voci.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Accedi…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Salva comunque</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>È possibile salvarla così come appare qui o tornare indietro senza salvare.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>Le voci si trovano su %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>Le voci su %1 non sono raggiungibili dalle %2; ciò che si salva ora andrebbe perso.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>Maga&amp;zzino</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Gestione</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>Impossibile leggere le voci. Controllare il file del database, poi riaprire questa pagina.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>&amp;Gruppi di utenti</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>&amp;Utenti</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Ripeti la password</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Torna alla velocità abituale</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>Impossibile avviare %1. Verificare che sia installato e riavviare Toolvane.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Elimina l’archivio pronto</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Altro posto…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Scegli un altro posto per l’archivio pronto</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>L’attività è stata interrotta.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Ascolta un esempio</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>Sal&amp;va</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>Salvataggio non riuscito. Verificare i dati inseriti e la destinazione, quindi riprovare.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>La lettura è stata salvata. Si trova nel file scelto.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Scegli…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>Most&amp;ra nella cartella</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Mostra il file creato nel gestore di file</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>In corso</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Contatti</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>Origi&amp;ne</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Non è ancora stato indicato il video da convertire.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Sintesi vocale</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>Il testo non può essere letto: espeak-ng non è installato.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Velocità in parole al minuto</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Torna alla velocità abituale</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Ascolta un esempio</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Legge un testo ad alta voce o salva la lettura come file audio.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Testo da leggere ad alta voce</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Scrivere o incollare il testo da leggere ad alta voce</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Questo testo è troppo lungo per essere letto in una volta. Dividerlo in parti.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Voce</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Non è ancora stata indicata l’origine. Scegliere prima su che cosa lavorare.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Magazzino</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>Non c’è nulla da compilare. «Salva» aggiunge una voce vuota.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Voce</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Per ora le voci di magazzino contengono solo il loro numero.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Nessuna compressione</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>&amp;Testo</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Non c’è ancora un testo da leggere. Prima scriverne o incollarne uno.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Mostra la versione e che cos’altro offre lo sviluppatore</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>Sito &amp;web</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Apre il sito web dello sviluppatore nel browser</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Spazio totale</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Cestino </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Estrai</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>Most&amp;ra la cartella</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Mostra la cartella di output nel gestore di file</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Cartella di output</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>La cartella in cui creare la nuova cartella</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Scegli la cartella di output</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Archivio da estrarre</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>L’archivio da estrarre, con estensione .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Scegli l’archivio da estrarre</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>L’attività è stata interrotta. Ciò che è stato estratto è nella nuova cartella.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Estrae un archivio zip in una nuova cartella con lo stesso nome.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>Impossibile estrarre completamente l’archivio. Verificare che sia un archivio zip completo e senza password. Ciò che è stato estratto finora si trova nella nuova cartella.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>L’archivio è stato estratto. La nuova cartella si trova nella cartella di output.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>&amp;Cerca aggiornamenti</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Interrogazione del server degli aggiornamenti…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>Scar&amp;ica</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 è pronto per l’installazione.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>Il file scaricato è stato verificato. Il percorso è qui sotto.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Scaricamento di Toolvane %1 in corso.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>L’elenco delle versioni era valido fino al %1, quindi possono mancare versioni più recenti. È possibile che qualcuno trattenga gli elenchi più recenti. Riprovare più tardi o da un’altra rete.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Elenco delle versioni: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Percorso del file scaricato</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 è installato.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Scaricamento di un aggiornamento</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Ultima ricerca: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Ultima ricerca: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>Non è impostato alcun server degli aggiornamenti.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Scrivere l’indirizzo del feed dello sviluppatore nel file delle impostazioni %1, come UpdateFeed nella sezione [Addresses]. Poi cercare gli aggiornamenti.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Questa copia di Toolvane è stata compilata senza la chiave dello sviluppatore. Non può verificare se le versioni sono autentiche, quindi mostra solo gli annunci e non propone nessun download.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>Questa versione non è accompagnata da note.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 non è stato scaricato.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 non è stato aperto.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Novità</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Note della nuova versione</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>Apri di &amp;nuovo</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>La connessione si è interrotta. Verificare la rete e riprovare.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>Il server non ha potuto dimostrare la propria identità: il certificato non è valido. Verificare l’orologio di questo computer o provare da un’altra rete.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>Il file non c’è più o non è quello che è stato verificato. Scaricarlo di nuovo.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>La risposta non ha senso, quindi forse non viene dal server degli aggiornamenti. Verificare l’indirizzo o provare da un’altra rete.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>È arrivato meno di quanto il server aveva annunciato. Riprovare.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>Manca la data, quindi potrebbe trattarsi di una vecchia copia. Non è stato usato nulla.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>La libreria che verifica le firme (libsodium) non è installata. Installarla e riprovare.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>Il server non ha inviato un elenco di versioni. Riprovare più tardi.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>Impossibile salvare il file: %1. Verificare che la cartella Scaricati sia scrivibile e abbia spazio sufficiente, quindi riprovare.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Nessun programma ha potuto aprire il file. Usare “Mostra nella cartella” per raggiungerlo.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>Le informazioni sono più vecchie di quelle ricevute in precedenza. È possibile che qualcuno abbia trattenuto quelle più recenti. Riprovare più tardi o da un’altra rete.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>Il server ha risposto con l’errore %1. Riprovare più tardi.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>L’operazione è stata interrotta.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>Il server ha impiegato troppo tempo a rispondere. Riprovare più tardi.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>Il server ha inviato più di quanto annunciato o consentito, quindi non è stato conservato nulla.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Non c’è stata risposta. Verificare la rete e riprovare.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>L’indirizzo non inizia con https o porta a un altro che non inizia così. Chiedere l’indirizzo corretto allo sviluppatore.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>Manca la firma dello sviluppatore, quindi non è stato usato nulla.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>La firma dello sviluppatore non corrisponde, quindi qualcun altro potrebbe aver modificato il contenuto. Non è stato conservato nulla.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 è disponibile.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>L’elenco delle versioni è scaduto.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>La ricerca di aggiornamenti non è riuscita.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>Impossibile raggiungere il server degli aggiornamenti.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>La risposta del server degli aggiornamenti non è attendibile.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 è disponibile, ma si è scelto di ignorare questa versione.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane è aggiornato.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>Ignora &amp;questa versione</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>Interrom&amp;pi</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Cerca una versione più recente di Toolvane, ogni volta che lo si richiede.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Verificare se esiste una versione più recente.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>P&amp;roponi di nuovo</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Tutti i diritti</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Un gruppo eliminato</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Gruppo attuale: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Dopo il salvataggio: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>Il gruppo resta invariato</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Ogni utente accede con un nome e una password e fa parte di un gruppo.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Spazio su disco</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Accesso autorizzato</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Misura le dimensioni delle cartelle selezionate</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Elimina definitivamente le cartelle selezionate, senza chiedere conferma</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 byte</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 liberati</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 liberati, il resto no: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Spazio su disco usato</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Quasi pieno</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Cartella autorizzata</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>La cartella Home, una volta autorizzato l’accesso</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Non presente</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Interrotto. Una cartella non ha risposto ed è stata lasciata indietro. Qualcosa che vi è montato potrebbe non essere raggiungibile.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>L’operazione non è potuta iniziare perché il sistema non consente altri thread. Chiuda altri programmi e riprovi.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>Non è una cartella</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Una parte non è leggibile</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>ci si arriva tramite un collegamento</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>lì è montato qualcosa</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>permesso mancante</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>interrotto</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Nulla è stato eliminato: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Misura ciò che ingombra la cartella Home ed elimina le cartelle selezionate.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Accesso non autorizzato</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Non leggibile</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Esiste già un utente con questo nome. Scegliere un altro nome.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Gruppo di utenti</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Un gruppo stabilisce che cosa possono vedere e modificare i suoi utenti.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Permessi del gruppo</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Esiste già un gruppo con questo nome. Scegliere un altro nome.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>Il gruppo contiene ancora utenti.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Spostare i suoi utenti in un altro gruppo o eliminarli, quindi eliminare il gruppo.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>Il gruppo non ha ancora un nome. Inserirne uno.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>Il nome del gruppo è troppo lungo. Usare al massimo 100 caratteri.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>L’utente non ha ancora un nome. Inserirne uno.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>Il nome dell’utente è troppo lungo. Usare al massimo 100 caratteri.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>Visualizza</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>Voc&amp;e</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>Volu&amp;me</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>Il volume non ha ancora un nome. Inserire il nome che l’immagine deve mostrare.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Apre il sito web dello sviluppatore nel browser</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Scegliere uno strumento a sinistra.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Strumenti di ogni giorno per file e contenuti multimediali, tutti in un unico posto.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>Questa non è la propria cartella Home.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Comprimi</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Elimina</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Eliminare l’archivio pronto?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Conserva</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>L’archivio non è ancora salvato.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Non salvato: la cartella non esiste.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Non salvato: lo spazio non basta.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Interrotto prima del salvataggio.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Non salvato: il nome esiste già.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Non salvato: lì non si può scrivere.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Archivio da creare</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>L’archivio da creare, con estensione .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Scegli l’archivio da creare</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Compressione</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Cartella da comprimere</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>La cartella da comprimere</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Scegli la cartella da comprimere</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Comprime tutto il contenuto di una cartella in un unico archivio zip.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>Impossibile creare l’archivio. Verificare che la cartella esista, non sia vuota e sia leggibile, e che ci sia spazio sul disco.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Esiste già un elemento con questo nome. Scegliere un altro nome per l’archivio.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>L’archivio non ha ancora un nome. Scegliere dove salvarlo.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>L’archivio è pronto.</translation>
    </message>
</context>
</TS>
