<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>제작사의 앱</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>이메일(&amp;E)</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>목록에 앱이 없습니다.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>다시 불러오기(&amp;R)</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Toolvane 정보</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>버전 %1. 일상적인 파일 및 미디어 도구를 한곳에 모았습니다.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>웹(&amp;W)</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>앱</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>접근이 허용되지 않았습니다.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>접근 허용</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>비디오 변환</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>출력 형식</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>만들 비디오</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>만들 비디오(확장자 .m4v)</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>만들 비디오 선택</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_ko.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>변환할 비디오</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>변환할 비디오</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>변환할 비디오 선택</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>재생할 기기에 알맞은 형식으로 비디오를 변환합니다.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>높은 압축률(최소 크기)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>캐시 </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>분류</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>검사</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>정리</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>지우기(&amp;C)</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>일상적인 파일 및 미디어 도구를 한 창에 모은 프로그램입니다.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>열 페이지: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>‘%1’ 페이지가 없습니다. 사용할 수 있는 페이지: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>버전을 표시합니다.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>압축(&amp;P)</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>변환(&amp;V)</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>비디오를 변환하여 선택한 파일에 저장했습니다.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>비디오를 변환하지 못했습니다. 원본이 온전한 비디오인지, 여유 공간이 충분한지 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>기본 그룹</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Toolvane에서 처음에 만든 그룹</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>선택한 항목을 삭제하시겠습니까?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>삭제하면 되돌릴 수 없습니다.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>디스크 이미지</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>폴더의 모든 내용으로 디스크 이미지(DMG)를 만듭니다.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>다운로드 </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>제작사에 이메일을 보냅니다</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>빠른 압축</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>여유 공간</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>만들기(&amp;G)</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>안내서를 열 수 없습니다. 다음 위치에서 찾아보십시오:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>아이콘</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>만들 이미지 파일</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>만들 이미지(확장자 .%1)</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>만들 이미지 파일 선택</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>원본 폴더</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>이미지에 넣을 폴더</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>원본 폴더 선택</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>볼륨 이름</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>이미지를 열었을 때 표시되는 이름</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>재고 조사</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>CD 이미지</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>모든 데스크톱 시스템에서 읽을 수 있는 CD 이미지(ISO)를 폴더로 만듭니다.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1개 항목, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>약 %1시간 남음</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>약 %1분 남음</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>진행 중인 작업</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>이 작업의 페이지를 표시합니다</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>중지: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>로그인(&amp;L)</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>로그인</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>사용자 이름</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>로그 </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>메일 다운로드 </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>메모</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>Toolvane 정보(&amp;A)</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>안내서(&amp;G)</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>기록(&amp;R)</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>사용자 그룹에 이 권한이 없습니다.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>이 페이지를 열 수 있는 사용자로 로그인하거나 그룹에 권한을 추가해 달라고 요청하십시오.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>홈 폴더에 대한 접근이 아직 허용되지 않았습니다.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: 실패</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>보기</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: 중지됨</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: 완료</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>작업</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>출력(&amp;O)</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>출력 파일을 아직 선택하지 않았습니다.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>출력 형식(&amp;M)</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>출력 폴더에 압축 파일과 이름이 같은 항목이 이미 있습니다. 그 항목을 옮기거나 다른 출력 폴더를 선택하십시오.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>이미지 파일을 아직 선택하지 않았습니다. 이미지를 저장할 위치를 선택하십시오.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>두 암호가 서로 다릅니다. 같은 암호를 두 번 입력하십시오.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>암호가 아직 없습니다. 암호를 입력하십시오.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>암호가 너무 깁니다. 100자 이내로 입력하십시오.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>폴더를 지정하지 않으면 현재 폴더를 사용합니다: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>이 폴더에 압축 파일과 이름이 같은 항목이 이미 있습니다.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>폴더입니다. 파일 이름을 덧붙이십시오.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>폴더가 아닙니다.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>이 파일을 둘 폴더가 없습니다.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>공간이 모자랄 수 있습니다: 원본은 %1, 남은 공간은 %2입니다.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>이 파일이 없습니다.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>이 폴더가 없습니다.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>이 경로는 현재 폴더에서 시작합니다: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>이 파일이 이미 있으며 바뀝니다.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>같은 이름의 항목이 이미 있습니다. 다른 이름을 지정하십시오.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>읽을 수 없습니다.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>여기에는 쓸 수 없습니다.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>이 폴더가 아직 없습니다. 새로 만듭니다.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>권한</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>검사하고 정리하려면 ‘접근 허용’을 다시 누르고 홈 폴더를 선택하십시오.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>먼저 ‘접근 허용’을 누르고 홈 폴더를 선택하십시오.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>‘접근 허용’을 다시 누르고 다음 폴더를 선택하십시오: </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>확장자가 .m4v, .mp4, .mpg, .mpeg 또는 .avi인 비디오를 선택하십시오.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>변환한 비디오를 저장할 위치를 선택하십시오.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>공급업체</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>진행 중인 작업은 중지됩니다. 이미 완성된 결과는 제자리에 저장됩니다.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>계속 작업</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>압축 파일은 보관됩니다. 다음에 시작하면 Zip 페이지에 다시 나타납니다.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>아직 진행 중인 작업이 있습니다. 그래도 끝내시겠습니까?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>완성된 압축 파일이 아직 저장되지 않았습니다. 그래도 끝내시겠습니까?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>속도(&amp;R)</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>읽기(&amp;D)</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>추가(&amp;A)…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>데이터베이스가 사용 중입니다. 다른 프로그램이 사용하고 있습니다. 잠시 후 이 페이지를 다시 여십시오.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>이 항목이 여기에 열려 있는 동안 다른 사람이 변경했습니다.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>삭제(&amp;D)…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>이 항목이 여기에 열려 있는 동안 다른 사람이 삭제했습니다.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>편집(&amp;E)…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>항목이 아직 없습니다.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>로그인(&amp;L)…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>그래도 저장(&amp;S)</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>여기에 보이는 대로 저장하거나 저장하지 않고 돌아갈 수 있습니다.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>항목이 저장되는 곳: %1</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>%2부터 %1의 항목에 연결할 수 없습니다. 지금 저장하는 내용은 사라집니다.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>재고(&amp;S)</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>기록</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>항목을 읽을 수 없습니다. 데이터베이스 파일을 확인한 다음 이 페이지를 다시 여십시오.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>사용자 그룹(&amp;G)</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>사용자(&amp;U)</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>암호 다시 입력</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>보통 속도로 되돌리기</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>%1을(를) 시작하지 못했습니다. 설치되어 있는지 확인하고 Toolvane을 다시 시작하십시오.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>완성된 압축 파일 버리기</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>다른 위치…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>완성된 압축 파일의 다른 위치 선택</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>작업이 중지되었습니다.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>예시 듣기</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>저장하지 못했습니다. 입력한 내용과 저장 위치를 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>음성을 선택한 파일에 저장했습니다.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>선택…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>폴더에서 보기(&amp;D)</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>만든 파일을 파일 관리자에서 보기</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>작업 중</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>도구</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>연락하기</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>원본(&amp;S)</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>변환할 비디오를 아직 선택하지 않았습니다.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>음성 합성</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>텍스트를 읽을 수 없습니다: espeak-ng가 설치되어 있지 않습니다.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>속도(분당 단어 수)</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>보통 속도로 되돌리기</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>예시 듣기</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>텍스트를 소리 내어 읽거나, 읽은 음성을 소리 파일로 저장합니다.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>읽을 텍스트</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>읽을 텍스트를 입력하거나 붙여 넣으십시오</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>텍스트가 너무 길어 한 번에 읽을 수 없습니다. 나누어 읽으십시오.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>목소리</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>원본이 아직 없습니다. 먼저 작업할 대상을 선택하십시오.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>재고</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>입력할 내용이 없습니다. ‘저장’을 누르면 빈 항목이 추가됩니다.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>항목</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>재고 항목에는 아직 번호만 들어 있습니다.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>저장만(압축 안 함)</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>텍스트(&amp;X)</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>읽을 텍스트가 아직 없습니다. 먼저 텍스트를 입력하거나 붙여 넣으십시오.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>버전과 제작사의 다른 앱을 표시합니다</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>도구 모음</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>웹 사이트(&amp;W)</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>제작사의 웹 사이트를 브라우저에서 엽니다</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>전체 공간</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>휴지통 </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>zip 압축 풀기</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>폴더 보기(&amp;D)</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>출력 폴더를 파일 관리자에서 보기</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>출력 폴더</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>새 폴더를 만들 위치의 폴더</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>출력 폴더 선택</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>풀 압축 파일</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>풀 압축 파일(확장자 .zip)</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>풀 압축 파일 선택</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>작업이 중지되었습니다. 푼 내용은 새 폴더에 있습니다.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>zip 압축 파일을 같은 이름의 새 폴더에 풉니다.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>압축 파일을 모두 풀지 못했습니다. 암호가 없는 온전한 zip 압축 파일인지 확인하십시오. 지금까지 푼 내용은 새 폴더에 있습니다.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>압축 파일을 풀었습니다. 새 폴더는 출력 폴더에 있습니다.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>업데이트 확인(&amp;C)</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>업데이트 서버에 확인하는 중…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>다운로드(&amp;D)</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 설치 준비가 되었습니다.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>다운로드한 파일을 검증했습니다. 경로는 아래에 있습니다.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Toolvane %1 다운로드 중입니다.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>버전 목록은 %1까지 유효했으므로 새 버전이 빠져 있을 수 있습니다. 누군가 새 목록이 전달되지 않게 막고 있을 수 있습니다. 나중에 또는 다른 네트워크에서 다시 시도하십시오.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>버전 목록: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>다운로드한 파일의 경로</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 버전이 설치되어 있습니다.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>업데이트 다운로드</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>마지막 확인: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>마지막 확인: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>업데이트 서버가 설정되어 있지 않습니다.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>설정 파일 %1의 [Addresses] 섹션에 제작사의 피드 주소를 UpdateFeed 값으로 입력하십시오. 그런 다음 업데이트를 확인하십시오.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>이 Toolvane은 제작사의 키 없이 빌드되었습니다. 버전이 진짜인지 확인할 수 없으므로 알려진 내용만 보여 주고 다운로드를 제공하지 않습니다.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>이 버전에는 릴리스 노트가 없습니다.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 버전이 다운로드되지 않았습니다.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 파일을 열지 않았습니다.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>새로운 내용</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>새 버전의 릴리스 노트</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>다시 열기(&amp;O)</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>연결이 끊어졌습니다. 네트워크를 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>서버의 인증서가 올바르지 않아 서버의 신원을 확인할 수 없습니다. 이 컴퓨터의 시계를 확인하거나 다른 네트워크에서 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>파일이 없어졌거나 검증한 파일과 다릅니다. 다시 다운로드하십시오.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>응답의 내용이 올바르지 않습니다. 업데이트 서버의 응답이 아닐 수 있습니다. 주소를 확인하거나 다른 네트워크에서 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>서버가 알린 것보다 적은 데이터를 받았습니다. 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>날짜가 없어 오래된 사본일 수 있습니다. 받은 내용은 전혀 사용하지 않았습니다.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>서명을 확인하는 라이브러리(libsodium)가 설치되어 있지 않습니다. 설치한 다음 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>서버에서 보낸 내용이 버전 목록이 아닙니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>파일을 저장하지 못했습니다: %1. 다운로드 폴더에 쓸 수 있고 공간이 있는지 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>파일을 열 수 있는 프로그램이 없습니다. “폴더에서 보기”로 파일을 찾을 수 있습니다.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>이전에 받은 것보다 오래되었습니다. 누군가 새 내용이 전달되지 않게 막았을 수 있습니다. 나중에 또는 다른 네트워크에서 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>서버에서 오류 %1 응답을 보냈습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>중지되었습니다.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>서버가 너무 오래 응답하지 않았습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>서버가 알린 크기나 허용된 크기보다 많은 데이터를 보내서 아무것도 저장하지 않았습니다.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>응답이 없습니다. 네트워크를 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>주소가 https로 시작하지 않거나 그렇지 않은 주소로 연결됩니다. 제작사에 올바른 주소를 문의하십시오.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>제작사의 서명이 없어 받은 내용을 전혀 사용하지 않았습니다.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>제작사의 서명이 맞지 않아 다른 사람이 변경했을 수 있습니다. 아무것도 저장하지 않았습니다.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 버전을 사용할 수 있습니다.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>버전 목록의 유효 기간이 지났습니다.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>업데이트를 확인하지 못했습니다.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>업데이트 서버에 연결할 수 없습니다.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>업데이트 서버의 응답을 신뢰할 수 없습니다.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 버전을 사용할 수 있지만 건너뛰기로 선택했습니다.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane이 최신 버전입니다.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>이 버전 건너뛰기(&amp;K)</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>중지(&amp;P)</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>요청할 때마다 Toolvane의 새 버전을 찾습니다.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>새 버전이 있는지 확인하십시오.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>다시 제안(&amp;O)</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>모든 권한</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>삭제된 그룹</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>현재 그룹: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>저장 후: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>그룹을 그대로 둡니다</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>각 사용자는 이름과 암호로 로그인하며 한 그룹에 속합니다.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>캐시 정리</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>접근이 허용됨</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>체크한 폴더의 크기를 측정합니다</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>체크한 폴더를 다시 묻지 않고 완전히 삭제합니다</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0바이트</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 확보함</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 확보, 나머지 남음: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>디스크 사용량</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>거의 가득 참</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>접근을 허용한 폴더</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>접근을 허용하면 홈 폴더가 표시됩니다</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>없음</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>중지했습니다. 응답하지 않는 폴더가 있어 그대로 두었습니다. 그 안에 마운트된 것에 연결할 수 없을 수 있습니다.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>시스템에서 스레드를 더 허용하지 않아 시작할 수 없었습니다. 다른 프로그램을 닫고 다시 시도하세요.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>폴더가 아님</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>일부를 읽을 수 없음</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>링크를 거치는 경로임</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>마운트된 것이 있음</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>권한 없음</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>중지됨</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>아무것도 삭제하지 않음: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>홈 폴더에 있는 불필요한 파일의 크기를 측정하고, 체크한 폴더를 삭제합니다.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>접근이 허용되지 않음</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>같은 이름의 사용자가 이미 있습니다. 다른 이름을 입력하십시오.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>사용자 그룹</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>그룹</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>그룹은 소속 사용자가 보고 변경할 수 있는 내용을 정합니다.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>그룹 권한</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>같은 이름의 그룹이 이미 있습니다. 다른 이름을 입력하십시오.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>그룹에 아직 사용자가 있습니다.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>사용자를 다른 그룹으로 옮기거나 삭제한 다음 그룹을 삭제하십시오.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>그룹 이름이 아직 없습니다. 이름을 입력하십시오.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>그룹 이름이 너무 깁니다. 100자 이내로 입력하십시오.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>사용자 이름이 아직 없습니다. 이름을 입력하십시오.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>사용자 이름이 너무 깁니다. 100자 이내로 입력하십시오.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>목소리(&amp;V)</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>볼륨(&amp;V)</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>볼륨 이름이 아직 없습니다. 이미지에 표시할 이름을 입력하십시오.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>제작사의 웹 사이트를 브라우저에서 엽니다</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>왼쪽에서 도구를 선택하십시오.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>일상적인 파일 및 미디어 도구를 한곳에서.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>이 폴더는 홈 폴더가 아닙니다.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>zip 압축</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>버리기</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>완성된 압축 파일을 버리시겠습니까?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>보관</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>압축 파일이 아직 저장되지 않았습니다.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>저장 안 됨: 폴더가 없습니다.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>저장 안 됨: 공간이 모자랍니다.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>저장하기 전에 중지되었습니다.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>저장 안 됨: 이미 있는 이름입니다.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>저장 안 됨: 그곳에는 쓸 수 없습니다.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>만들 압축 파일</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>만들 압축 파일(확장자 .zip)</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>만들 압축 파일 선택</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>압축</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>압축할 폴더</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>압축할 폴더</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>압축할 폴더 선택</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>폴더의 모든 내용을 하나의 zip 압축 파일로 묶습니다.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>압축 파일을 만들지 못했습니다. 폴더가 존재하고 비어 있지 않으며 읽을 수 있는지, 디스크에 공간이 있는지 확인하십시오.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>같은 이름의 항목이 이미 있습니다. 압축 파일에 다른 이름을 지정하십시오.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>압축 파일 이름이 아직 없습니다. 저장할 위치를 선택하십시오.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>압축 파일이 준비되었습니다.</translation>
    </message>
</context>
</TS>
