<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>تطبيقات المطوّر</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>ال&amp;بريد الإلكتروني</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>لا توجد تطبيقات في القائمة.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>إعادة الت&amp;حميل</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>حول Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>الإصدار %1. أدوات الاستخدام اليومي للملفات والوسائط في مكان واحد.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>الو&amp;يب</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>التطبيقات</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>لم يُمنح إذن الوصول.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>منح الإذن</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>تحويل الفيديو</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>صيغة الإخراج</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>الفيديو المراد إنشاؤه</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>الفيديو المراد إنشاؤه، بالامتداد ‎.m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>اختيار الفيديو المراد إنشاؤه</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_ar.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>الفيديو المراد تحويله</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>الفيديو المراد تحويله</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>اختيار الفيديو المراد تحويله</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>يحوّل الفيديو إلى صيغة تناسب الجهاز الذي سيُشغَّل عليه.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>أفضل (أصغر حجم)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>التخزين المؤقت </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>الفئة</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>فحص</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>تنظيف</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>مس&amp;ح</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>أدوات الاستخدام اليومي للملفات والوسائط في نافذة واحدة.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>الصفحة المراد فتحها: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>لا توجد صفحة باسم «%1». الصفحات المتاحة: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>عرض الإصدار.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>ال&amp;ضغط</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>&amp;تحويل</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>حُوِّل الفيديو وحُفظ في الملف الذي اخترته.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>تعذّر تحويل الفيديو. تحقّق من أن الفيديو المصدر كامل ومن وجود مساحة فارغة كافية، ثم حاول مرة أخرى.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>المجموعة المبدئية</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>أنشأها Toolvane كبداية</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>هل تريد حذف السجل المحدد؟</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>لا يمكن استعادته بعد الحذف.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>صورة قرص</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>ينشئ صورة قرص (DMG) من كل محتويات مجلد.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>التنزيلات </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>مراسلة المطوّر</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>أسرع</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>المساحة الفارغة</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>إن&amp;شاء</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>تعذّر فتح الدليل. ابحث عنه هنا:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>الأيقونة</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>ملف الصورة المراد إنشاؤه</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>الصورة المراد إنشاؤها، بالامتداد ‎.%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>اختيار ملف الصورة المراد إنشاؤه</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>المجلد المصدر</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>المجلد المراد وضعه في الصورة</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>اختيار المجلد المصدر</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>اسم وحدة التخزين</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>الاسم الذي تعرضه الصورة عند فتحها</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>الجرد</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>صورة قرص مدمج</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>ينشئ من مجلد صورة قرص مدمج (ISO) تستطيع كل أنظمة سطح المكتب قراءتها.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>العناصر: %1، %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>المتبقي %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>المتبقي نحو %1 ساعة</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>المتبقي نحو %1 دقيقة</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>الأعمال الجارية</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>عرض صفحة هذا العمل</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>إيقاف: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>تسجيل ال&amp;دخول</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>ملفات السجل </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>تنزيلات البريد </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>ملاحظة</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>&amp;حول Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>ال&amp;دليل</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>مسا&amp;عدة</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;سجلات</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>أ&amp;دوات</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>ليس لمجموعة المستخدمين التي تنتمي إليها هذه الصلاحية.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>سجّل الدخول باسم مستخدم يحق له فتح هذه الصفحة، أو اطلب إضافة الصلاحية إلى مجموعتك.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>لم يُمنح إذن الوصول إلى مجلد المنزل بعد.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: تعذّر الإكمال</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: أُوقف</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: اكتمل</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>العملية</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>الإ&amp;خراج</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>لم يُختر ملف الإخراج بعد.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>صي&amp;غة الإخراج</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>يوجد في مجلد الإخراج عنصر يحمل اسم الأرشيف. انقله إلى مكان آخر أو اختر مجلد إخراج آخر.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>لم يُختر ملف للصورة بعد. اختر مكان حفظ الصورة.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>كلمتا المرور غير متطابقتين. أدخل كلمة المرور نفسها مرتين.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>لا توجد كلمة مرور بعد. أدخل كلمة مرور.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>كلمة المرور طويلة جدًا. استخدم 100 حرف على الأكثر.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>من دون مجلد يُستخدم المجلد الحالي: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>يوجد في هذا المجلد عنصر يحمل اسم الأرشيف.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>هذا مجلد. أضف اسم ملف.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>هذا ليس مجلدًا.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>المجلد المخصص لهذا الملف غير موجود.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>قد لا تكفي المساحة: حجم المصدر %1 والمتاح %2 فقط.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>هذا الملف غير موجود.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>هذا المجلد غير موجود.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>يبدأ هذا المسار من المجلد الحالي: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>هذا الملف موجود وسيُستبدل.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>يوجد عنصر بهذا الاسم. اختر اسمًا آخر.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>تتعذّر قراءة هذا.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>تتعذّر الكتابة هنا.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>هذا المجلد غير موجود بعد. سيُنشأ.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(الصلاحيات)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>لإجراء الفحص والتنظيف، اضغط «منح الإذن» مرة أخرى واختر مجلد المنزل.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>اضغط «منح الإذن» أولًا واختر مجلد المنزل.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>اضغط «منح الإذن» مرة أخرى واختر المجلد: ‎ </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>اختر ملف فيديو بأحد الامتدادات ‎.m4v أو ‎.mp4 أو ‎.mpg أو ‎.mpeg أو ‎.avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>اختر مكان حفظ الفيديو بعد تحويله.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>المنتج</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>المورّد</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>سيُوقف العمل الجاري. أما النتيجة المكتملة فستُحفظ في مكانها.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>متابعة العمل</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>سيُحتفظ به. ستعرضه صفحة Zip مجددًا عند التشغيل التالي.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>لا يزال هناك عمل جارٍ. هل تريد الإنهاء رغم ذلك؟</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>لم يُحفظ أرشيف مكتمل بعد. هل تريد الإنهاء رغم ذلك؟</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>ا&amp;لسرعة</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>ق&amp;راءة</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>إ&amp;ضافة…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>قاعدة البيانات مشغولة: يستخدمها برنامج آخر. افتح هذه الصفحة مجددًا بعد قليل.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>غيّر شخص آخر هذا الإدخال بينما كان مفتوحًا هنا.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>&amp;حذف…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>حذف شخص آخر هذا الإدخال بينما كان مفتوحًا هنا.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;تحرير…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>لا توجد سجلات بعد.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>تسجيل ال&amp;دخول…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>ا&amp;حفظ على أي حال</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>يمكنك حفظه كما تراه هنا، أو العودة دون حفظ.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>تُحفظ السجلات في %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>تعذّر الوصول إلى السجلات في %1 منذ %2؛ وما تحفظه الآن سيضيع.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>المخ&amp;زون</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>السجلات</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>تعذّرت قراءة الإدخالات. افحص ملف قاعدة البيانات، ثم افتح هذه الصفحة مجددًا.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>م&amp;جموعات المستخدمين</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>المستخدم&amp;ون</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>تكرار كلمة المرور</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>العودة إلى السرعة المعتادة</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>تعذّر تشغيل %1. تحقّق من أنه مثبّت ثم أعد تشغيل Toolvane.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>تجاهل الأرشيف المكتمل</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>مكان آخر…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>اختيار مكان آخر للأرشيف المكتمل</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>أُوقف العمل.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>الاستماع إلى عيّنة</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>ح&amp;فظ</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>تعذّر الحفظ. تحقّق مما أدخلته ومن مكان الحفظ، ثم حاول مرة أخرى.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>حُفظ الكلام في الملف الذي اخترته.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>اختيار…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>عرض في الم&amp;جلد</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>عرض الملف الذي أُنشئ في مدير الملفات</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>قيد العمل</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>لنبقَ على تواصل</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>الم&amp;صدر</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>لم يُختر فيديو لتحويله بعد.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>توليد الكلام</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>تتعذّر قراءة النص: espeak-ng غير مثبّت.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>السرعة بعدد الكلمات في الدقيقة</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>العودة إلى السرعة المعتادة</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>الاستماع إلى عيّنة</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>يقرأ النص بصوت مسموع، أو يحفظ النص المقروء في ملف صوتي.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>النص المراد قراءته</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>اكتب النص المراد قراءته أو الصقه</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>هذا النص أطول من أن يُقرأ دفعة واحدة. قسّمه إلى أجزاء.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>الصوت</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>لم يُختر المصدر بعد. اختر أولًا ما تريد العمل عليه.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>المخزون</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>لا يوجد ما يُملأ. الضغط على «حفظ» يضيف سجلًا فارغًا.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>السجل</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>لا تحمل سجلات المخزون حتى الآن سوى أرقامها.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>تخزين فقط (بلا ضغط)</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>ال&amp;نص</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>لا يوجد نص لقراءته بعد. اكتب نصًا أو الصقه أولًا.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>عرض الإصدار وما يقدّمه المطوّر من تطبيقات أخرى</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>شريط الأدوات</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>موقع ال&amp;ويب</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>فتح موقع المطوّر في المتصفح</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>المساحة الكلية</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>المهملات </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>فك ضغط zip</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>عرض الم&amp;جلد</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>عرض مجلد الإخراج في مدير الملفات</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>المجلد الذي سيُنشأ فيه المجلد الجديد</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>اختيار مجلد الإخراج</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>الأرشيف المراد فك ضغطه</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>الأرشيف المراد فك ضغطه، بالامتداد ‎.zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>اختيار الأرشيف المراد فك ضغطه</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>أُوقف العمل. ما فُك ضغطه موجود في المجلد الجديد.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>يفك ضغط أرشيف zip في مجلد جديد يحمل اسمه.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>تعذّر فك ضغط الأرشيف كاملًا. تحقّق من أنه أرشيف zip كامل وبلا كلمة مرور. ما فُك ضغطه حتى الآن موجود في المجلد الجديد.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>فُك ضغط الأرشيف. المجلد الجديد موجود في مجلد الإخراج.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>التحديث</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>الت&amp;حقق من التحديثات</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>يجري سؤال خادم التحديث…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>&amp;تنزيل</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>إصدار Toolvane %1 جاهز للتثبيت.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>جرى التحقق من الملف المنزَّل. مساره أدناه.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>يجري تنزيل Toolvane %1.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>كانت قائمة الإصدارات صالحة حتى %1، فقد تنقصها إصدارات أحدث. ربما يحجب أحدهم القوائم الأحدث. حاول لاحقًا أو عبر شبكة أخرى.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>قائمة الإصدارات: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>مسار الملف المنزَّل</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>الإصدار المثبَّت هو Toolvane %1.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>تنزيل تحديث</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>آخر تحقق: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>آخر تحقق: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>لم يُضبط خادم للتحديث.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>اكتب عنوان تغذية المطوّر في ملف الإعدادات ‎%1‎ بالاسم UpdateFeed في القسم ‎[Addresses]‎. ثم تحقّق من التحديثات.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>بُنيت هذه النسخة من Toolvane بلا مفتاح المطوّر، فلا يمكنها التحقق من أن الإصدارات أصلية. لذلك تعرض المعلن فقط ولا تعرض أي تنزيل.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>لا توجد ملاحظات مع هذا الإصدار.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>لم يُنزَّل Toolvane %1.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>لم يُفتح Toolvane %1.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>ما الجديد</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>ملاحظات الإصدار الجديد</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>إعادة ال&amp;فتح</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>انقطع الاتصال. تحقّق من الشبكة ثم حاول مرة أخرى.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>لم يتمكن الخادم من إثبات هويته: شهادته غير صالحة. تحقّق من ساعة هذا الحاسوب أو حاول عبر شبكة أخرى.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>الملف لم يعد موجودًا، أو ليس هو الملف الذي جرى التحقق منه. نزّله مرة أخرى.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>الرد غير مفهوم، فقد لا يكون من خادم التحديث. تحقّق من عنوانه أو حاول عبر شبكة أخرى.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>وصلت بيانات أقل مما أعلنه الخادم. حاول مرة أخرى.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>لا يوجد تاريخ، فقد تكون نسخة قديمة. لم يُستخدم منها شيء.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>المكتبة التي تتحقق من التوقيعات (libsodium) غير مثبّتة. ثبّتها ثم حاول مرة أخرى.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>ما أرسله الخادم ليس قائمة إصدارات. حاول لاحقًا.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>تعذّر حفظ الملف: ‎%1‎. تحقّق من إمكانية الكتابة في مجلد التنزيلات ومن وجود مساحة كافية، ثم حاول مرة أخرى.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>لم يتمكن أي برنامج من فتح الملف. استخدم «عرض في المجلد» للوصول إليه.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>ما وصل أقدم مما حصلت عليه سابقًا، فربما حجب أحدهم الأحدث. حاول لاحقًا أو عبر شبكة أخرى.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>أجاب الخادم بالخطأ %1. حاول لاحقًا.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>أُوقفت العملية.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>تأخر الخادم كثيرًا في الرد. حاول لاحقًا.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>أرسل الخادم أكثر مما أعلنه أو أكثر من المسموح، ولذلك لم يُحفظ شيء.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>لم يصل أي رد. تحقّق من الشبكة ثم حاول مرة أخرى.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>لا يبدأ العنوان بـ https، أو يؤدي إلى عنوان لا يبدأ به. اطلب العنوان الصحيح من المطوّر.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>لا يوجد توقيع المطوّر، ولذلك لم يُستخدم شيء.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>توقيع المطوّر غير مطابق، فربما غيّر أحدهم المحتوى. لم يُحفظ شيء.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>يتوفر Toolvane %1.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>انتهت صلاحية قائمة الإصدارات.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>فشل التحقق من التحديثات.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>تعذّر الوصول إلى خادم التحديث.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>لا يمكن الوثوق برد خادم التحديث.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>يتوفر Toolvane %1، لكنك اخترت تخطيه.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>لديك أحدث إصدار من Toolvane.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>ت&amp;خطي هذا الإصدار</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>إ&amp;يقاف</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>يبحث عن إصدار أحدث من Toolvane متى طلبت ذلك.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>تحقّق من وجود إصدار أحدث.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>إعادة الع&amp;رض</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>كل الصلاحيات</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>مجموعة محذوفة</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>المجموعة الآن: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>بعد الحفظ: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>تبقى المجموعة كما هي</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>يسجّل كل مستخدم الدخول باسم وكلمة مرور وينتمي إلى مجموعة واحدة.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>تنظيف التخزين المؤقت</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>مُنح إذن الوصول</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>قياس حجم المجلدات المؤشَّر عليها</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>حذف المجلدات المؤشَّر عليها نهائيًا دون سؤال آخر</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 بايت</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>تم تحرير &#x2068;%1&#x2069;</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>تم تحرير &#x2068;%1&#x2069; وبقي الباقي: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>مساحة القرص المستخدمة</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>شبه ممتلئ</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>المجلد المأذون به</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>مجلد المنزل، بعد أن تمنح إذن الوصول إليه</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>غير موجود</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>تم الإيقاف. لم يستجب أحد المجلدات فتُرك كما هو. قد يتعذر الوصول إلى شيء موصول بداخله.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>تعذر البدء لأن النظام لا يسمح بمزيد من مسارات التنفيذ. أغلق برامج أخرى ثم حاول مرة أخرى.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>ليس مجلدًا</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>تتعذر قراءة جزء منه</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>يمر الطريق إليه عبر رابط</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>يوجد شيء موصول هناك</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>لا يوجد إذن</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>تم الإيقاف</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>لم يُحذف شيء: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>يقيس الملفات الزائدة في مجلد المنزل ويحذف المجلدات التي تؤشّر عليها.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>لم يُمنح إذن الوصول</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>تتعذر القراءة</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>يوجد مستخدم بهذا الاسم. اختر اسمًا آخر.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>مجموعة المستخدمين</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>المجموعة</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>تحدّد المجموعة ما يمكن لمستخدميها الاطلاع عليه وتغييره.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>صلاحيات المجموعة</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>توجد مجموعة بهذا الاسم. اختر اسمًا آخر.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>لا يزال في المجموعة مستخدمون.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>انقل المستخدمين إلى مجموعة أخرى أو احذفهم، ثم احذف المجموعة.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>ليس للمجموعة اسم بعد. أدخل اسمًا.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>اسم المجموعة طويل جدًا. استخدم 100 حرف على الأكثر.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>ليس للمستخدم اسم بعد. أدخل اسمًا.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>اسم المستخدم طويل جدًا. استخدم 100 حرف على الأكثر.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>عرض</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>ال&amp;صوت</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>وحدة التخ&amp;زين</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>ليس لوحدة التخزين اسم بعد. أدخل الاسم الذي ستعرضه الصورة.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>فتح موقع المطوّر في المتصفح</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>اختر أداة من القائمة الجانبية.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>أدوات الاستخدام اليومي للملفات والوسائط في مكان واحد.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>هذا ليس مجلد المنزل.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>إنشاء zip</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>هل تريد تجاهل الأرشيف المكتمل؟</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>احتفاظ</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>لم يُحفظ الأرشيف بعد.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>لم يُحفظ: المجلد غير موجود.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>لم يُحفظ: المساحة لا تكفي.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>أُوقف قبل حفظه.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>لم يُحفظ: الاسم مستخدم.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>لم يُحفظ: تتعذّر الكتابة هناك.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>الأرشيف المراد إنشاؤه</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>الأرشيف المراد إنشاؤه، بالامتداد ‎.zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>اختيار الأرشيف المراد إنشاؤه</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>الضغط</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>المجلد المراد ضغطه</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>المجلد المراد ضغطه</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>اختيار المجلد المراد ضغطه</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>يجمع كل ما في مجلد في أرشيف zip واحد.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>تعذّر إنشاء الأرشيف. تحقّق من أن المجلد موجود وغير فارغ وقابل للقراءة، ومن وجود مساحة على القرص.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>يوجد عنصر بهذا الاسم. اختر اسمًا آخر للأرشيف.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>ليس للأرشيف اسم بعد. اختر مكان حفظه.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>الأرشيف جاهز.</translation>
    </message>
</context>
</TS>
