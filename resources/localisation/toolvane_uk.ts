<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Програми розробника</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;Ел. пошта</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>У списку немає програм.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>&amp;Перезавантажити</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Про Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Версія %1. Повсякденні інструменти для файлів і медіа в одному місці.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Вебсайт</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Додати</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Програми</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>Доступ не надано.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Надати доступ</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Відеоконвертер</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Формат результату</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Нове відео</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>Відео, яке буде створено, з розширенням .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Вибрати, куди зберегти нове відео</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_uk.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Відео для конвертування</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>Відео, яке потрібно конвертувати</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Вибрати відео для конвертування</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Конвертує відео у формат, який підходить для пристрою, де його дивитимуться.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Краще (найменший розмір)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Кеш </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Категорія</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Перевірити</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Очистити</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>&amp;Очистити</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Повсякденні інструменти для файлів і медіа в одному вікні.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Показати цю довідку.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>Сторінка, яку слід відкрити: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>Сторінки «%1» немає. Доступні сторінки: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Показати версію.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>&amp;Стискання</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>&amp;Конвертувати</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>Відео конвертовано та збережено у вибраному файлі.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>Не вдалося конвертувати відео. Переконайтеся, що файл відео повний і що на диску достатньо вільного місця, а потім спробуйте ще раз.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Типова група</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Створено Toolvane для початку роботи</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Видалити вибраний запис?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>Відновити його буде неможливо.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Опис</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Образ диска</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Створює образ диска (DMG) з усього вмісту теки.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Завантаження </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Змінити</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Написати розробнику</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Швидше</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Вільно</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>Загальне</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>С&amp;творити</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>Не вдалося відкрити посібник. Шукайте його тут:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Піктограма</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Новий файл образу</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>Образ, який буде створено, з розширенням .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Вибрати, куди зберегти файл образу</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Тека-джерело</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>Тека, яку слід помістити в образ</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Вибрати теку-джерело</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Назва тому</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>Назва, яку показуватиме відкритий образ</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Склад</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>Образ CD</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Створює з теки образ компакт-диска (ISO), який читається в кожній настільній системі.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>Об’єктів: %1, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>ще %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>ще близько %1 год</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>ще близько %1 хв</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Поточні завдання</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Показати сторінку цього завдання</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Зупинити</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Зупинити: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Увійти</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Вхід</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Ім’я користувача</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Журнали </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Завантаження з пошти </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Примітка</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>&amp;Про Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>По&amp;сібник</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>&amp;Довідка</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>Ви&amp;йти</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Записи</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Інструменти</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Ваша група користувачів не має цього права.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Увійдіть як користувач, якому дозволено відкривати цю сторінку, або попросіть надати це право вашій групі.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>Доступ до домашньої теки ще не надано.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: не вдалося виконати</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Показати</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: зупинено</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: завершено</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Дії</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>&amp;Результат</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Файл результату ще не вибрано.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>Фор&amp;мат результату</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>У теці призначення вже є об’єкт із назвою архіву. Перемістіть його або виберіть іншу теку призначення.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Файл для запису образу ще не вибрано. Виберіть, куди зберегти образ.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>Паролі не збігаються. Введіть двічі однаковий пароль.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Пароля ще немає. Введіть його.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>Пароль задовгий. Використайте не більше ніж 100 символів.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Без теки використовується поточна: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>У цій теці вже є об’єкт із назвою архіву.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>Це тека. Додайте назву файлу.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>Це не тека.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>Теки для цього файлу немає.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>Може забракнути місця: джерело має %1, вільно лише %2.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Такого файлу немає.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Такої теки немає.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Цей шлях починається в поточній теці: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Цей файл існує, і його буде замінено.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Об’єкт із такою назвою вже існує. Виберіть іншу назву.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Це неможливо прочитати.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Сюди неможливо нічого записати.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Такої теки ще немає. Її буде створено.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(права)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Щоб виконати перевірку й очищення, знову натисніть «Надати доступ» і виберіть домашню теку.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Спершу натисніть «Надати доступ» і виберіть домашню теку.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Знову натисніть «Надати доступ» і виберіть теку </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Виберіть відео з розширенням .m4v, .mp4, .mpg, .mpeg або .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Виберіть, куди зберегти конвертоване відео.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Товар</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Поступ</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Постачальник</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>Те, що зараз виконується, буде зупинено. Уже готовий результат усе одно буде збережено на своєму місці.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Продовжити роботу</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Його збережено. Сторінка Zip запропонує його під час наступного запуску.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Робота ще триває. Усе одно вийти?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Готовий архів ще не збережено на місці. Усе одно вийти?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>&amp;Швидкість</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>Озву&amp;чити</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Додати…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>База даних зайнята: її використовує інша програма. Відкрийте цю сторінку знову за мить.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Хтось інший змінив цей запис, поки він був відкритий тут.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>В&amp;идалити…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Хтось інший видалив цей запис, поки він був відкритий тут.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>З&amp;мінити…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Записів ще немає.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Увійти…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Усе одно зберегти</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>Ви можете зберегти його таким, яким бачите тут, або повернутися без збереження.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>Записи зберігаються за адресою %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>Записи за адресою %1 недоступні з %2; те, що ви зараз збережете, буде втрачено.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>&amp;Запаси</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Записи</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>Не вдається прочитати записи. Перевірте файл бази даних і відкрийте цю сторінку знову.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>&amp;Групи користувачів</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>&amp;Користувачі</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Повторіть пароль</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Повернути звичайну швидкість</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>Не вдалося запустити %1. Переконайтеся, що програму встановлено, і перезапустіть Toolvane.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Відкинути готовий архів</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Інше місце…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Вибрати інше місце для готового архіву</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>Роботу зупинено.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Прослухати зразок</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>З&amp;берегти</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>Не вдалося зберегти. Перевірте введені дані й місце збереження, а потім спробуйте ще раз.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>Озвучений текст збережено у вибраному файлі.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Вибрати…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Параметри</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>Показати в т&amp;еці</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Показати створений файл у файловому менеджері</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>Виконується</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Інструменти</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Залишайтеся на зв’язку</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>Д&amp;жерело</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Відео для конвертування ще не вибрано.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Синтез мовлення</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>Текст неможливо озвучити: espeak-ng не встановлено.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Швидкість у словах за хвилину</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Повернути звичайну швидкість</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Прослухати зразок</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Читає текст уголос або зберігає озвучений текст як звуковий файл.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Текст для озвучення</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Введіть або вставте текст, який потрібно озвучити</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Цей текст задовгий, щоб озвучити його за раз. Поділіть його на частини.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Голос</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Джерело ще не вибрано. Спершу виберіть, з чим працювати.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Запаси</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>Заповнювати нічого не потрібно. Кнопка «Зберегти» додасть порожній запис.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Запис</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Записи про запаси поки що містять лише свій номер.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Без стискання</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>Те&amp;кст</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Тексту для озвучення ще немає. Спершу введіть або вставте його.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Показати версію та інші програми розробника</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Панель інструментів</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>&amp;Вебсайт</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Відкрити вебсайт розробника у браузері</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Усього</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Смітник </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Тип</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Розпакувати zip</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>Показати т&amp;еку</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Показати теку призначення у файловому менеджері</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Тека призначення</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>Тека, у якій буде створено нову теку</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Вибрати теку призначення</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Архів для розпакування</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>Архів, який потрібно розпакувати, з розширенням .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Вибрати архів для розпакування</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>Роботу зупинено. Усе, що розпаковано, лежить у новій теці.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Розпаковує архів zip у нову теку, названу так само, як архів.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>Не вдалося повністю розпакувати архів. Переконайтеся, що це повний архів zip без пароля. Усе, що вдалося розпакувати, лежить у новій теці.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>Архів розпаковано. Нова тека лежить у теці призначення.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Оновлення</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>Перевірити &amp;наявність оновлень</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Запит до сервера оновлень…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>Зав&amp;антажити</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 готовий до встановлення.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>Завантажений файл перевірено. Його шлях вказано нижче.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Завантажується Toolvane %1.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>Список версій був дійсний до %1, тож у ньому може бракувати новіших версій. Хтось міг затримати новіші списки. Спробуйте пізніше або в іншій мережі.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Список версій: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Шлях завантаженого файлу</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Встановлено Toolvane %1.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Завантаження оновлення</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Остання перевірка: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Остання перевірка: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>Сервер оновлень не налаштовано.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Запишіть адресу стрічки оновлень розробника у файл параметрів %1 як UpdateFeed у розділі [Addresses]. Потім перевірте наявність оновлень.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Цю копію Toolvane зібрано без ключа розробника. Вона не може перевірити, чи справжні версії, тому лише показує оголошене й не пропонує нічого завантажувати.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>До цієї версії немає приміток.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 не завантажено.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 не відкрито.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Що нового</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Примітки до нової версії</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>Відкрити &amp;ще раз</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>З’єднання обірвалося. Перевірте мережу та спробуйте ще раз.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>Сервер не підтвердив, хто він: його сертифікат недійсний. Перевірте годинник цього комп’ютера або спробуйте в іншій мережі.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>Файлу вже немає або це не той файл, який було перевірено. Завантажте його ще раз.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>Відповідь не має змісту, тож вона може бути не від сервера оновлень. Перевірте його адресу або спробуйте в іншій мережі.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Надійшло менше даних, ніж оголосив сервер. Спробуйте ще раз.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>Дати не вказано, тож це може бути стара копія. Жодних даних із неї не використано.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>Бібліотеку для перевірки підписів (libsodium) не встановлено. Встановіть її та спробуйте ще раз.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>Сервер надіслав не список версій. Спробуйте пізніше.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>Не вдалося зберегти файл: %1. Перевірте, чи доступна тека «Завантаження» для запису і чи достатньо в ній місця, а потім спробуйте ще раз.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Жодна програма не змогла відкрити файл. Щоб перейти до нього, скористайтеся кнопкою «Показати в теці».</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>Отримані дані старіші за попередні, тож хтось міг затримати новіші. Спробуйте пізніше або в іншій мережі.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>Сервер повідомив про помилку %1. Спробуйте пізніше.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>Дію зупинено.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>Сервер надто довго не відповідав. Спробуйте пізніше.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>Сервер надіслав більше, ніж оголосив або ніж дозволено, тому нічого не збережено.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Відповіді немає. Перевірте мережу та спробуйте ще раз.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>Адреса не починається з https або веде на адресу, яка починається інакше. Запитайте в розробника правильну адресу.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>Підпису розробника немає, тому нічого не використано.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>Підпис розробника не відповідає даним, тож їх міг змінити хтось інший. Нічого не збережено.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 з %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Доступна версія Toolvane %1.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>Термін дії списку версій минув.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>Перевірити оновлення не вдалося.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>Не вдалося з’єднатися із сервером оновлень.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>Відповіді сервера оновлень не можна довіряти.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Доступна версія Toolvane %1, але ви вирішили її пропустити.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>У вас найновіша версія Toolvane.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>Пр&amp;опустити цю версію</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Стан</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>З&amp;упинити</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Шукає новішу версію Toolvane, коли ви про це попросите.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Перевірте, чи є новіша версія.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>&amp;Пропонувати знову</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Користувач</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Усі права</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Видалена група</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Група зараз: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Після збереження: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>Група залишається без змін</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Кожен користувач входить за іменем і паролем та належить до однієї групи.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Очищення кешу</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Доступ надано</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Виміряти розмір позначених тек</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Остаточно видалити позначені теки без додаткового запиту</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 байтів</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>Звільнено %1</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>Звільнено %1, решту ні: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Зайняте місце на диску</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Майже заповнено</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Тека, до якої надано доступ</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>Тут з’явиться ваша домашня тека, коли ви надасте до неї доступ</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Не існує</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Зупинено. Одна з папок не відповіла, тож її залишено. Можливо, щось змонтоване в ній недоступне.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>Не вдалося почати, бо система не дозволяє більше потоків. Закрийте інші програми та спробуйте ще раз.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>Це не папка</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Частину неможливо прочитати</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>шлях веде через посилання</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>там щось змонтовано</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>немає дозволу</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>зупинено</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Нічого не видалено: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Вимірює зайві файли у вашій домашній теці та видаляє теки, які ви позначите.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Доступ не надано</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Неможливо прочитати</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Користувач із таким іменем уже існує. Виберіть інше ім’я.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Група користувачів</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Група</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Група визначає, що її користувачі можуть переглядати й змінювати.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Права групи</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Група з такою назвою вже існує. Виберіть іншу назву.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>У групі ще є користувачі.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Перемістіть користувачів до іншої групи або видаліть їх, а потім видаліть групу.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>Група ще не має назви. Введіть її.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>Назва групи задовга. Використайте не більше ніж 100 символів.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>Користувач ще не має імені. Введіть його.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>Ім’я користувача задовге. Використайте не більше ніж 100 символів.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>Переглянути</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>&amp;Голос</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>То&amp;м</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>Том ще не має назви. Введіть назву, яку показуватиме образ.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Відкрити вебсайт розробника у браузері</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Виберіть інструмент ліворуч.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Повсякденні інструменти для файлів і медіа в одному місці.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>Це не ваша домашня тека.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Створити zip</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Відкинути</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Відкинути готовий архів?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Залишити</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>Архів ще не збережено.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Не збережено: теки немає.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Не збережено: бракує місця.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Зупинено до збереження.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Не збережено: назву зайнято.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Не збережено: туди неможливо записати.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Новий архів</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>Архів, який буде створено, з розширенням .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Вибрати, куди зберегти новий архів</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Стискання</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Тека для пакування</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>Тека, яку потрібно запакувати</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Вибрати теку для пакування</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Пакує весь вміст теки в один архів zip.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>Не вдалося створити архів. Переконайтеся, що тека існує, не порожня й доступна для читання і що на диску достатньо місця.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Об’єкт із такою назвою вже існує. Виберіть іншу назву для архіву.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>Архів ще не має назви. Виберіть, куди його зберегти.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>Архів готовий.</translation>
    </message>
</context>
</TS>
