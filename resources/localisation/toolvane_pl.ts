<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Programy producenta</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>Na liście nie ma programów.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>&amp;Wczytaj ponownie</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>O programie Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Wersja %1. Codzienne narzędzia do plików i multimediów w jednym miejscu.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;WWW</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Programy</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>Dostęp nie został przyznany.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Zezwól</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Konwersja wideo</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Format wyjściowy</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Plik wideo do utworzenia</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>Plik wideo do utworzenia, z rozszerzeniem .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Wybierz plik wideo do utworzenia</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_pl.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Plik wideo do przekonwertowania</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>Plik wideo do przekonwertowania</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Wybierz plik wideo do przekonwertowania</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Konwertuje plik wideo do formatu odpowiedniego dla urządzenia, które ma go odtwarzać.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Lepsza (najmniejszy rozmiar)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Pamięć podręczna </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Kategoria</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Sprawdź</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Oczyść</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>Wyc&amp;zyść</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Codzienne narzędzia do plików i multimediów w jednym oknie.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>Strona do otwarcia: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>Nie ma strony „%1”. Dostępne strony: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Wyświetla wersję.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>Ko&amp;mpresja</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>Prz&amp;ekonwertuj</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>Plik wideo został przekonwertowany. Wynik znajduje się w wybranym pliku.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>Nie udało się przekonwertować pliku wideo. Należy sprawdzić, czy źródło jest kompletnym plikiem wideo i czy jest dość wolnego miejsca, a następnie spróbować ponownie.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Grupa domyślna</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Utworzona przez Toolvane na początek</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Usunąć zaznaczony wpis?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>Nie będzie można go przywrócić.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Obraz dysku</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Tworzy obraz dysku (DMG) z całej zawartości katalogu.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Pobrane </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Otwiera nową wiadomość e-mail do producenta</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Szybsza</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Wolne miejsce</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>&amp;Utwórz</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>Nie udało się otworzyć podręcznika. Jest tutaj:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Ikona</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Plik obrazu do utworzenia</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>Obraz do utworzenia, z rozszerzeniem .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Wybierz plik obrazu do utworzenia</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Katalog źródłowy</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>Katalog do umieszczenia w obrazie</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Wybierz katalog źródłowy</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Nazwa woluminu</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>Nazwa wyświetlana po otwarciu obrazu</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Inwentarz</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>Obraz płyty CD</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Tworzy z katalogu obraz płyty CD (ISO), który odczyta każdy system.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>Elementy: %1, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>zostało %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>zostało ok. %1 godz.</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>zostało ok. %1 min</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Zadania w toku</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Wyświetla stronę tego zadania</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Zatrzymaj: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Zaloguj się</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Logowanie</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Dzienniki </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Pobrane z poczty </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Notatka</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>&amp;O programie Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Podręcznik</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>Ka&amp;rtoteki</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Narzędzia</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Ta grupa użytkowników nie ma tego uprawnienia.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Należy zalogować się jako użytkownik, który może otworzyć tę stronę, albo poprosić o dodanie uprawnienia do swojej grupy.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>Dostęp do katalogu domowego nie został jeszcze przyznany.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: zadanie się nie powiodło</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: zadanie zatrzymano</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: zadanie ukończono</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Działanie</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>W&amp;yjście</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Nie podano jeszcze pliku wyjściowego.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>&amp;Format wyjściowy</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>W katalogu wyjściowym jest już element o nazwie archiwum. Należy go przenieść lub wybrać inny katalog wyjściowy.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Nie podano jeszcze pliku obrazu. Należy wybrać, gdzie zapisać obraz.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>Podane hasła się różnią. Należy dwukrotnie wpisać to samo hasło.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Nie podano jeszcze hasła. Należy je wpisać.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>Hasło jest za długie. Może mieć najwyżej 100 znaków.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Bez katalogu używany jest bieżący: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>W tym katalogu jest już element o nazwie archiwum.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>To jest katalog. Należy dodać nazwę pliku.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>To nie jest katalog.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>Katalog dla tego pliku nie istnieje.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>Może zabraknąć miejsca: źródło ma %1, wolne jest tylko %2.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Ten plik nie istnieje.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Ten katalog nie istnieje.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Ta ścieżka zaczyna się w bieżącym katalogu: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Ten plik istnieje i zostanie zastąpiony.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Element o tej nazwie już istnieje. Należy wybrać inną nazwę.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Tego nie można odczytać.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Tutaj nie można niczego zapisać.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Ten katalog jeszcze nie istnieje. Zostanie utworzony.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(uprawnienia)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Aby sprawdzić i oczyścić, należy ponownie kliknąć „Zezwól” i wybrać swój katalog domowy.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Należy najpierw kliknąć „Zezwól” i wybrać swój katalog domowy.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Należy ponownie kliknąć „Zezwól” i wybrać katalog </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Należy wybrać plik wideo z rozszerzeniem .m4v, .mp4, .mpg, .mpeg lub .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Należy wybrać, gdzie zapisać przekonwertowany plik wideo.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Dostawca</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>Zadania w toku zostaną zatrzymane. Ukończony już wynik zostanie jeszcze umieszczony w miejscu docelowym.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Kontynuuj</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Zostanie zachowane. Strona Zip zaproponuje je przy następnym uruchomieniu.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Zadania są jeszcze w toku. Zakończyć mimo to?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Gotowe archiwum nie jest jeszcze zapisane. Zakończyć mimo to?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>Te&amp;mpo</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>Przec&amp;zytaj</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Dodaj…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>Baza danych jest zajęta: korzysta z niej inny program. Proszę otworzyć tę stronę ponownie za chwilę.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Ktoś inny zmienił ten wpis, gdy był tu otwarty.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>&amp;Usuń…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Ktoś inny usunął ten wpis, gdy był tu otwarty.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Nie ma jeszcze żadnych wpisów.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Zaloguj się…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Zapisz mimo to</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>Można zapisać go tak, jak jest tu widoczny, albo wrócić bez zapisywania.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>Wpisy są przechowywane pod adresem %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>Wpisy pod adresem %1 są nieosiągalne od %2; to, co teraz zapiszesz, przepadnie.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>&amp;Magazyn</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Kartoteki</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>Nie można odczytać wpisów. Proszę sprawdzić plik bazy danych, a potem otworzyć tę stronę ponownie.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>&amp;Grupy użytkowników</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>Użyt&amp;kownicy</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Powtórz hasło</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Przywraca zwykłe tempo</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>Nie udało się uruchomić %1. Należy sprawdzić, czy jest zainstalowany, i uruchomić Toolvane ponownie.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Odrzuć gotowe archiwum</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Inne miejsce…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Wybierz inne miejsce dla gotowego archiwum</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>Zadanie zostało zatrzymane.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Odtwarza próbkę głosu</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>Z&amp;apisz</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>Nie udało się zapisać. Należy sprawdzić wprowadzone dane i miejsce docelowe, a następnie spróbować ponownie.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>Nagranie zostało zapisane. Znajduje się w wybranym pliku.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Wybierz…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>Pokaż w &amp;katalogu</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Pokaż utworzony plik w menedżerze plików</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>W toku</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Kontakt</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>Źró&amp;dło</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Nie podano jeszcze pliku wideo do przekonwertowania.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Synteza mowy</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>Nie można przeczytać tekstu: espeak-ng nie jest zainstalowany.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Tempo w słowach na minutę</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Przywróć zwykłe tempo</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Odtwórz próbkę głosu</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Czyta tekst na głos lub zapisuje nagranie jako plik dźwiękowy.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Tekst do przeczytania na głos</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Tu można wpisać lub wkleić tekst do przeczytania na głos</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Ten tekst jest za długi, aby przeczytać go naraz. Należy go podzielić.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Głos</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Nie podano jeszcze źródła. Należy najpierw wybrać, co przetworzyć.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Magazyn</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>Nie ma tu nic do wypełnienia. „Zapisz” dodaje pusty wpis.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Wpis</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Wpisy magazynu zawierają na razie tylko swój numer.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Bez kompresji</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Nie ma jeszcze tekstu do przeczytania. Należy najpierw wpisać lub wkleić tekst.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Wyświetla wersję i pozostałą ofertę producenta</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Pasek narzędzi</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>&amp;Witryna</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Otwiera witrynę producenta w przeglądarce</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Pojemność</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Kosz </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Rodzaj</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Rozpakuj</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>Pokaż &amp;katalog</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Pokaż katalog wyjściowy w menedżerze plików</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Katalog wyjściowy</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>Katalog, w którym zostanie utworzony nowy katalog</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Wybierz katalog wyjściowy</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Archiwum do rozpakowania</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>Archiwum do rozpakowania, z rozszerzeniem .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Wybierz archiwum do rozpakowania</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>Zadanie zatrzymano. To, co rozpakowano, jest w nowym katalogu.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Rozpakowuje archiwum zip do nowego katalogu o tej samej nazwie.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>Nie udało się w całości rozpakować archiwum. Należy sprawdzić, czy jest to kompletne archiwum zip bez hasła. To, co dotąd rozpakowano, jest w nowym katalogu.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>Archiwum zostało rozpakowane. Nowy katalog jest w katalogu wyjściowym.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>&amp;Szukaj aktualizacji</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Łączenie z serwerem aktualizacji…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>Po&amp;bierz</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 jest gotowy do instalacji.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>Pobrany plik został sprawdzony. Jego ścieżka jest poniżej.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Trwa pobieranie programu Toolvane %1.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>Lista wersji była ważna do %1, więc może w niej brakować nowszych wersji. Możliwe, że ktoś zatrzymuje nowsze listy. Należy spróbować ponownie później lub w innej sieci.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Lista wersji: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Ścieżka pobranego pliku</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 jest zainstalowany.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Pobieranie aktualizacji</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Ostatnie wyszukiwanie: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Ostatnie wyszukiwanie: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>Nie ustawiono serwera aktualizacji.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Należy wpisać adres kanału producenta w pliku ustawień %1 jako UpdateFeed w sekcji [Addresses], a następnie wyszukać aktualizacje.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Ta kopia programu Toolvane została zbudowana bez klucza producenta. Nie może sprawdzić, czy wersje są prawdziwe, więc pokazuje tylko zapowiedzi i nie proponuje pobierania.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>Do tej wersji nie dołączono informacji.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Nie pobrano programu Toolvane %1.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Nie otwarto programu Toolvane %1.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Nowości</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Informacje o nowej wersji</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>&amp;Otwórz ponownie</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>Połączenie zostało przerwane. Należy sprawdzić sieć i spróbować ponownie.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>Serwer nie potwierdził swojej tożsamości: jego certyfikat jest nieważny. Należy sprawdzić zegar tego komputera lub spróbować w innej sieci.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>Pliku już nie ma albo nie jest to plik, który został sprawdzony. Należy pobrać go ponownie.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>Odpowiedź jest bez sensu, więc może nie pochodzić z serwera aktualizacji. Należy sprawdzić jego adres lub spróbować w innej sieci.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Otrzymano mniej danych, niż zapowiedział serwer. Należy spróbować ponownie.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>Brak daty, więc może to być stara kopia. Nic nie zostało użyte.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>Biblioteka sprawdzająca podpisy (libsodium) nie jest zainstalowana. Należy ją zainstalować i spróbować ponownie.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>Serwer nie przysłał listy wersji. Należy spróbować ponownie później.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>Nie udało się zapisać pliku: %1. Należy sprawdzić, czy w katalogu Pobrane można zapisywać i czy jest w nim dość miejsca, a następnie spróbować ponownie.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Żaden program nie mógł otworzyć pliku. Aby do niego przejść, należy użyć przycisku „Pokaż w katalogu”.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>Otrzymane informacje są starsze niż poprzednie. Możliwe, że ktoś zatrzymał nowsze. Należy spróbować ponownie później lub w innej sieci.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>Serwer odpowiedział błędem %1. Należy spróbować ponownie później.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>Zadanie zostało zatrzymane.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>Serwer zbyt długo nie odpowiadał. Należy spróbować ponownie później.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>Serwer przysłał więcej danych, niż zapowiedział lub niż jest dozwolone, więc niczego nie zachowano.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Brak odpowiedzi. Należy sprawdzić sieć i spróbować ponownie.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>Adres nie zaczyna się od https lub prowadzi do adresu, który się tak nie zaczyna. Należy poprosić producenta o właściwy adres.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>Brak podpisu producenta, więc nic nie zostało użyte.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>Podpis producenta się nie zgadza, więc ktoś inny mógł zmienić zawartość. Niczego nie zachowano.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 jest dostępny.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>Lista wersji straciła ważność.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>Wyszukiwanie aktualizacji nie powiodło się.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>Nie udało się połączyć z serwerem aktualizacji.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>Odpowiedź serwera aktualizacji nie jest godna zaufania.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 jest dostępny, ale wybrano pominięcie tej wersji.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane jest aktualny.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>Pomiń tę w&amp;ersję</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>Z&amp;atrzymaj</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Wyszukuje na życzenie nowszą wersję programu Toolvane.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Można sprawdzić, czy jest nowsza wersja.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>Zaproponuj ponown&amp;ie</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Wszystkie uprawnienia</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Usunięta grupa</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Grupa teraz: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Po zapisaniu: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>Grupa pozostaje bez zmian</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Każdy użytkownik loguje się nazwą i hasłem i należy do jednej grupy.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Miejsce na dysku</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Dostęp przyznany</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Mierzy rozmiar zaznaczonych katalogów</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Trwale usuwa zaznaczone katalogi, bez ponownego pytania</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 bajtów</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>Zwolniono %1</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>Zwolniono %1, resztę nie: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Zajęte miejsce na dysku</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Prawie pełny</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Katalog z przyznanym dostępem</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>Katalog domowy, po przyznaniu do niego dostępu</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Nie istnieje</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Zatrzymano. Jeden z folderów nie odpowiedział i został pominięty. Coś, co jest w nim zamontowane, może być nieosiągalne.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>Nie można było rozpocząć, ponieważ system nie pozwala na więcej wątków. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>To nie jest folder</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Części nie można odczytać</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>droga prowadzi przez dowiązanie</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>coś jest tam zamontowane</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>brak uprawnień</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>zatrzymano</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Niczego nie usunięto: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Mierzy, co zajmuje miejsce w katalogu domowym, i usuwa zaznaczone katalogi.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Dostęp nieprzyznany</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Nie można odczytać</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Użytkownik o tej nazwie już istnieje. Należy wybrać inną nazwę.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Grupa użytkowników</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Grupa określa, co jej użytkownicy mogą widzieć i zmieniać.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Uprawnienia grupy</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Grupa o tej nazwie już istnieje. Należy wybrać inną nazwę.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>Grupa ma jeszcze użytkowników.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Należy przenieść jej użytkowników do innej grupy lub ich usunąć, a następnie usunąć grupę.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>Grupa nie ma jeszcze nazwy. Należy ją wpisać.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>Nazwa grupy jest za długa. Może mieć najwyżej 100 znaków.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>Użytkownik nie ma jeszcze nazwy. Należy ją wpisać.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>Nazwa użytkownika jest za długa. Może mieć najwyżej 100 znaków.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>Wyświetl</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>&amp;Głos</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>Wo&amp;lumin</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>Wolumin nie ma jeszcze nazwy. Należy wpisać nazwę, którą ma pokazywać obraz.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Otwiera witrynę producenta w przeglądarce</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Proszę wybrać narzędzie po lewej stronie.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Codzienne narzędzia do plików i multimediów w jednym miejscu.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>To nie jest katalog domowy bieżącego użytkownika.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Spakuj</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Odrzuć</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Odrzucić gotowe archiwum?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Zachowaj</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>Archiwum nie jest jeszcze zapisane.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Nie zapisano: katalog nie istnieje.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Nie zapisano: za mało miejsca.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Zatrzymano przed zapisaniem.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Nie zapisano: nazwa jest zajęta.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Nie zapisano: nie można tam zapisywać.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Archiwum do utworzenia</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>Archiwum do utworzenia, z rozszerzeniem .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Wybierz archiwum do utworzenia</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Kompresja</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Katalog do spakowania</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>Katalog do spakowania</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Wybierz katalog do spakowania</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Pakuje całą zawartość katalogu do jednego archiwum zip.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>Nie udało się utworzyć archiwum. Należy sprawdzić, czy katalog istnieje, nie jest pusty i można go odczytać oraz czy na dysku jest miejsce.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Element o tej nazwie już istnieje. Należy wybrać inną nazwę archiwum.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>Archiwum nie ma jeszcze nazwy. Należy wybrać, gdzie je zapisać.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>Archiwum jest gotowe.</translation>
    </message>
</context>
</TS>
