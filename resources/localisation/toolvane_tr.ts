<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Geliştiricinin uygulamaları</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;E-posta</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>Listede uygulama yok.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>Yeniden &amp;Yükle</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Toolvane Hakkında</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Sürüm %1. Günlük dosya ve medya araçları tek bir yerde.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Web</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Uygulamalar</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>Erişim izni verilmedi.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>İzin Ver</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Video Dönüştür</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Çıktı biçimi</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Oluşturulacak video</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>Oluşturulacak video (uzantısı .m4v)</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Oluşturulacak videoyu seç</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_tr.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Dönüştürülecek video</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>Dönüştürülecek video</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Dönüştürülecek videoyu seç</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Bir videoyu, oynatılacağı aygıta uygun biçime dönüştürür.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Daha iyi (en küçük)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Önbellekler </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Kategori</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Denetle</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Temizle</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>&amp;Temizle</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Günlük dosya ve medya araçları tek bir pencerede.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Bu yardımı gösterir.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>Açılacak sayfa: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>“%1” adında bir sayfa yok. Kullanılabilecek sayfalar: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Sürümü gösterir.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>&amp;Sıkıştırma</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>Dön&amp;üştür</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>Video dönüştürüldü ve seçtiğiniz dosyaya kaydedildi.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>Video dönüştürülemedi. Kaynağın eksiksiz bir video olduğundan ve yeterli boş alan bulunduğundan emin olup yeniden deneyin.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Öntanımlı Grup</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Başlangıç için Toolvane tarafından oluşturuldu</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Seçili kayıt silinsin mi?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>Silinen kayıt geri getirilemez.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Disk Kalıbı</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Bir klasördeki her şeyden bir disk kalıbı (DMG) oluşturur.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>İndirilenler </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Geliştiriciye e-posta yaz</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Daha hızlı</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Boş alan</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>&amp;Oluştur</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>Kılavuz açılamadı. Burada bulabilirsiniz:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Simge</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Oluşturulacak kalıp dosyası</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>Oluşturulacak kalıp (uzantısı .%1)</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Oluşturulacak kalıp dosyasını seç</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Kaynak klasör</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>Kalıba konulacak klasör</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Kaynak klasörü seç</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Birim adı</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>Kalıp açıldığında görünecek ad</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Envanter</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>CD Kalıbı</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Bir klasörden her masaüstü sisteminin okuyabildiği bir CD kalıbı (ISO) oluşturur.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 öge, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>%1 kaldı</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>yaklaşık %1 sa kaldı</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>yaklaşık %1 dk kaldı</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Süren işler</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%%1</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Bu işin sayfasını göster</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Durdur: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Oturum Aç</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Oturum Aç</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Günlükler </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>E-posta indirmeleri </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Not</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>Toolvane &amp;Hakkında</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Kılavuz</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>&amp;Çık</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Kayıtlar</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Araçlar</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Kullanıcı grubunuzun bu hakkı yok.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Bu sayfayı açabilen bir kullanıcı olarak oturum açın ya da hakkın grubunuza eklenmesini isteyin.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>Ev klasörünüze henüz erişim izni verilmedi.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: başarısız oldu</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Göster</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: durduruldu</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: tamamlandı</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>İşlem</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>&amp;Çıktı</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Henüz bir çıktı dosyası seçilmedi.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>Çıktı &amp;Biçimi</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>Çıktı klasöründe arşivin adını taşıyan bir öge zaten var. Onu başka yere taşıyın ya da başka bir çıktı klasörü seçin.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Henüz bir kalıp dosyası seçilmedi. Kalıbın nereye kaydedileceğini seçin.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>İki parola birbirinden farklı. İkisine de aynı parolayı girin.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Henüz parola yok. Bir parola girin.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>Parola çok uzun. En çok 100 karakter kullanın.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Klasör verilmezse geçerli klasör kullanılır: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>Bu klasörde arşivin adını taşıyan bir öge zaten var.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>Bu bir klasör. Bir dosya adı ekleyin.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>Bu bir klasör değil.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>Bu dosyanın klasörü yok.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>Yer yetmeyebilir: kaynak %1, boş yer yalnızca %2.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Bu dosya yok.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Bu klasör yok.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Bu yol geçerli klasörden başlar: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Bu dosya var ve değiştirilecek.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Bu adda bir öge zaten var. Başka bir ad seçin.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Bu okunamıyor.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Buraya bir şey yazılamıyor.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Bu klasör henüz yok. Oluşturulacak.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>Hakları</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Denetlemek ve temizlemek için “İzin Ver” düğmesine yeniden basıp ev klasörünüzü seçin.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Önce “İzin Ver” düğmesine basıp ev klasörünüzü seçin.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>“İzin Ver” düğmesine yeniden basıp şu klasörü seçin: </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Uzantısı .m4v, .mp4, .mpg, .mpeg ya da .avi olan bir video seçin.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Dönüştürülen videonun nereye kaydedileceğini seçin.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Ürün</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Tedarikçi</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>Süren işler durdurulur. Tamamlanmış bir sonuç yine de yerine konur.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Çalışmayı Sürdür</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Arşiv saklanır. Zip sayfası bir sonraki açılışta onu yeniden sunar.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Süren işler var. Yine de çıkılsın mı?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Bitmiş bir arşiv henüz kaydedilmedi. Yine de çıkılsın mı?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>&amp;Hız</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>&amp;Oku</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Ekle…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>Veritabanı meşgul: başka bir program kullanıyor. Bu sayfayı birazdan yeniden açın.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Bu kayıt burada açıkken başka biri onu değiştirdi.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>&amp;Sil…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Bu kayıt burada açıkken başka biri onu sildi.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;Düzenle…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Henüz kayıt yok.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Oturum Aç…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Yine de Kaydet</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>Burada gördüğünüz gibi kaydedebilir ya da kaydetmeden geri dönebilirsiniz.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>Kayıtlar şurada tutuluyor: %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>Kayıtlara (%1) şu saatten beri ulaşılamıyor: %2. Şimdi kaydettikleriniz kaybolur.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>Sto&amp;k</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Kayıtlar</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>Kayıtlar okunamıyor. Veritabanı dosyasını denetleyin, sonra bu sayfayı yeniden açın.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>Kullanıcı &amp;Grupları</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>K&amp;ullanıcılar</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Parolayı yineleyin</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Olağan hıza dön</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>%1 başlatılamadı. Kurulu olduğundan emin olun ve Toolvane’i yeniden başlatın.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Bitmiş arşivi sil</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Başka Yer…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Bitmiş arşiv için başka bir yer seç</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>İş durduruldu.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Örnek dinle</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>Kayde&amp;t</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>Kaydedilemedi. Girdiklerinizi ve kaydedileceği yeri denetleyip yeniden deneyin.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>Konuşma, seçtiğiniz dosyaya kaydedildi.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Seç…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>Klasörde &amp;Göster</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Oluşturulan dosyayı dosya yöneticisinde göster</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>Çalışıyor</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Araçlar</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>İletişimde Kalın</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>Kay&amp;nak</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Henüz dönüştürülecek bir video seçilmedi.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Konuşma Sentezi</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>Metin okunamaz: espeak-ng kurulu değil.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Dakikadaki sözcük sayısıyla hız</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Olağan hıza dön</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Örnek dinle</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Bir metni sesli okur ya da okunan metni ses dosyası olarak kaydeder.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Sesli okunacak metin</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Sesli okunacak metni yazın ya da yapıştırın</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Bu metin bir kerede okunamayacak kadar uzun. Parçalara bölün.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Ses</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Henüz kaynak yok. Önce üzerinde çalışılacak ögeyi seçin.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Stok</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>Doldurulacak bir alan yok. “Kaydet” düğmesi boş bir kayıt ekler.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Kayıt</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Stok kayıtları şimdilik yalnızca numaralarından oluşur.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Depola (sıkıştırma yok)</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>&amp;Metin</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Henüz okunacak metin yok. Önce bir metin yazın ya da yapıştırın.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Sürümü ve geliştiricinin sunduğu diğer uygulamaları göster</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Araç Çubuğu</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>&amp;Web Sitesi</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Geliştiricinin web sitesini tarayıcınızda aç</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Toplam alan</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Çöp </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Tür</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Zip Arşivini Aç</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>Klasörü &amp;Göster</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Çıktı klasörünü dosya yöneticisinde göster</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Çıktı klasörü</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>Yeni klasörün içinde oluşturulacağı klasör</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Çıktı klasörünü seç</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Açılacak arşiv</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>Açılacak arşiv (uzantısı .zip)</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Açılacak arşivi seç</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>İş durduruldu. Açılanlar yeni klasörde duruyor.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Bir zip arşivini, arşivin adını taşıyan yeni bir klasöre açar.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>Arşiv bütünüyle açılamadı. Parolasız ve eksiksiz bir zip arşivi olduğundan emin olun. Şimdiye kadar açılanlar yeni klasörde duruyor.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>Arşiv açıldı. Yeni klasör, çıktı klasörünün içinde.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Güncelleme</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>&amp;Güncellemeleri Denetle</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Güncelleme sunucusuna soruluyor…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>İ&amp;ndir</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 kurulmaya hazır.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>İndirilen dosya denetlendi. Yolu aşağıda.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Toolvane %1 indiriliyor.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>Sürüm listesi şu tarihe kadar geçerliydi: %1. Bu yüzden daha yeni sürümler eksik olabilir. Biri yeni listeleri alıkoyuyor olabilir. Daha sonra ya da başka bir ağda yeniden deneyin.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Sürüm listesi: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>İndirilen dosyanın yolu</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 kurulu.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Güncelleme indirme</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Son denetim: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Son denetim: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>Güncelleme sunucusu ayarlanmamış.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Geliştiricinin güncelleme akışının adresini %1 ayar dosyasına, [Addresses] bölümündeki UpdateFeed değeri olarak yazın. Ardından güncellemeleri denetleyin.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Bu Toolvane kopyası geliştiricinin anahtarı olmadan derlenmiş. Sürümlerin gerçek olup olmadığını denetleyemez; bu yüzden yalnızca duyurulanı gösterir ve indirme sunmaz.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>Bu sürümle gelen bir not yok.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 indirilmedi.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 açılmadı.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Yenilikler</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Yeni sürümün notları</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>Y&amp;eniden Aç</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>Bağlantı koptu. Ağınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>Sunucu kimliğini kanıtlayamadı: sertifikası geçerli değil. Bu bilgisayarın saatini denetleyin ya da başka bir ağda deneyin.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>Dosya artık yok ya da denetlenen dosya değil. Yeniden indirin.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>Yanıt anlamsız, bu yüzden güncelleme sunucusundan gelmiyor olabilir. Sunucunun adresini denetleyin ya da başka bir ağda deneyin.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Sunucunun bildirdiğinden daha az veri geldi. Yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>Üzerinde tarih yok, bu yüzden eski bir kopya olabilir. İçindeki hiçbir şey kullanılmadı.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>İmzaları denetleyen kitaplık (libsodium) kurulu değil. Kurup yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>Sunucunun gönderdiği şey bir sürüm listesi değil. Daha sonra yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>Dosya kaydedilemedi: %1. İndirilenler klasörünün yazılabilir olduğuna ve yeterli yer bulunduğuna bakıp yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Hiçbir program dosyayı açamadı. Dosyaya ulaşmak için “Klasörde Göster”i kullanın.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>Daha önce aldığınızdan eski, bu yüzden biri yenisini alıkoymuş olabilir. Daha sonra ya da başka bir ağda yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>Sunucu %1 hatasını bildirdi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>Durduruldu.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>Sunucunun yanıt vermesi çok uzun sürdü. Daha sonra yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>Sunucu bildirdiğinden ya da izin verilenden fazlasını gönderdi, bu yüzden hiçbir şey saklanmadı.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Yanıt gelmedi. Ağınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>Adres https ile başlamıyor ya da öyle başlamayan bir adrese yönlendiriyor. Doğru adresi geliştiriciye sorun.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>Geliştiricinin imzasını taşımıyor, bu yüzden hiçbir şey kullanılmadı.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>Geliştiricinin imzası uyuşmuyor, bu yüzden başka biri değiştirmiş olabilir. Hiçbir şey saklanmadı.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 kullanılabilir.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>Sürüm listesinin süresi doldu.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>Güncelleme denetimi başarısız oldu.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>Güncelleme sunucusuna ulaşılamadı.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>Güncelleme sunucusunun yanıtına güvenilemiyor.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 kullanılabilir, ancak bu sürümü atlamayı seçtiniz.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane güncel.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>Bu Sürümü At&amp;la</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>Du&amp;rdur</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Siz istediğinizde Toolvane uygulamasının daha yeni bir sürümünü arar.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Daha yeni bir sürüm olup olmadığını denetleyin.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>Yeniden &amp;Öner</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Kullanıcı</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Tüm haklar</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Silinmiş bir grup</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Şimdiki grup: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Kaydettikten sonra: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>Grup olduğu gibi kalır</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Her kullanıcı bir ad ve parolayla oturum açar ve tek bir gruba bağlıdır.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Önbellek Temizle</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Erişim izni verildi</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>İşaretli klasörlerin boyutunu ölç</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>İşaretli klasörleri yeniden sormadan kalıcı olarak sil</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 bayt</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 boşaltıldı</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 boşaltıldı, gerisi kaldı: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Kullanılan disk alanı</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Neredeyse dolu</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>İzin verilen klasör</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>İzin verdiğinizde ev klasörünüz burada görünür</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Yok</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Durduruldu. Bir klasör yanıt vermedi ve geride bırakıldı. İçine bağlanmış bir şeye ulaşılamıyor olabilir.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>Sistem daha fazla iş parçacığına izin vermediği için başlatılamadı. Başka programları kapatıp yeniden deneyin.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>Klasör değil</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Bir bölümü okunamıyor</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>yolu bir bağlantıdan geçiyor</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>oraya bir şey bağlı</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>izin yok</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>durduruldu</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Hiçbir şey silinmedi: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Ev klasörünüzdeki gereksiz dosyaları ölçer ve işaretlediğiniz klasörleri siler.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Erişim izni verilmedi</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Okunamıyor</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Bu adda bir kullanıcı zaten var. Başka bir ad seçin.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Kullanıcı Grubu</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Grup, kullanıcılarının neleri görüp değiştirebileceğini belirler.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Grubun hakları</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Bu adda bir grup zaten var. Başka bir ad seçin.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>Grupta hâlâ kullanıcılar var.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Kullanıcılarını başka bir gruba taşıyın ya da silin, ardından grubu silin.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>Grubun henüz adı yok. Bir ad girin.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>Grubun adı çok uzun. En çok 100 karakter kullanın.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>Kullanıcının henüz adı yok. Bir ad girin.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>Kullanıcının adı çok uzun. En çok 100 karakter kullanın.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>Görüntüle</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>&amp;Ses</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>&amp;Birim</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>Birimin henüz adı yok. Kalıbın göstereceği adı girin.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Geliştiricinin web sitesini tarayıcınızda aç</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Soldan bir araç seçin.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Günlük dosya ve medya araçları tek bir yerde.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>Bu, ev klasörünüz değil.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Zip Oluştur</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Sil</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Bitmiş arşiv silinsin mi?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Sakla</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>Arşiv henüz kaydedilmedi.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Kaydedilmedi: klasör yok.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Kaydedilmedi: yer yetmiyor.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Kaydedilmeden durduruldu.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Kaydedilmedi: bu ad kullanılıyor.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Kaydedilmedi: oraya yazılamıyor.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Oluşturulacak arşiv</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>Oluşturulacak arşiv (uzantısı .zip)</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Oluşturulacak arşivi seç</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Sıkıştırma</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Sıkıştırılacak klasör</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>Sıkıştırılacak klasör</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Sıkıştırılacak klasörü seç</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Bir klasörün içindeki her şeyi tek bir zip arşivinde toplar.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>Arşiv oluşturulamadı. Klasörün var olduğunu, boş olmadığını, okunabildiğini ve diskte yer bulunduğunu denetleyin.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Bu adda bir öge zaten var. Arşiv için başka bir ad seçin.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>Arşivin henüz adı yok. Nereye kaydedileceğini seçin.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>Arşiv hazır.</translation>
    </message>
</context>
</TS>
