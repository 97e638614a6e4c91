<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Aplicaciones del desarrollador</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;Correo</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>No hay aplicaciones en la lista.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>&amp;Recargar</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Acerca de Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Versión %1. Herramientas cotidianas para archivos y multimedia en un solo lugar.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Web</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>No se ha autorizado el acceso.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Autorizar</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Convertir vídeo</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Formato de salida</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Vídeo que se creará</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>El vídeo que se creará, con la extensión .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Elegir el vídeo que se creará</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_es.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Vídeo que se convertirá</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>El vídeo que se convertirá</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Elegir el vídeo que se convertirá</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Convierte un vídeo a un formato adecuado para el dispositivo que lo reproducirá.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Mejor (tamaño mínimo)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Cachés </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Analizar</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Limpiar</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Herramientas cotidianas para archivos y multimedia en una sola ventana.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>La página que se abrirá: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>No existe la página «%1». Estas son las páginas: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>Com&amp;presión</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>Con&amp;vertir</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>Se ha convertido el vídeo. Lo encontrará en el archivo que ha elegido.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>No se ha podido convertir el vídeo. Compruebe que el origen es un vídeo completo y que hay suficiente espacio libre e inténtelo de nuevo.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Grupo predeterminado</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Creado por Toolvane para empezar</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>¿Eliminar la entrada seleccionada?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>No se podrá recuperar.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Imagen de disco</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Crea una imagen de disco (DMG) con todo el contenido de una carpeta.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Descargas </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Envía un correo al desarrollador</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Más rápida</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Espacio libre</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>General</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>&amp;Crear</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>No se ha podido abrir la guía. Búsquela aquí:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Archivo de imagen que se creará</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>La imagen que se creará, con la extensión .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Elegir el archivo de imagen que se creará</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Carpeta de origen</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>La carpeta que se incluirá en la imagen</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Elegir la carpeta de origen</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Nombre del volumen</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>El nombre que muestra la imagen al abrirla</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Inventario</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>Imagen de CD</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Crea a partir de una carpeta una imagen de CD (ISO) que cualquier sistema puede leer.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 elementos, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>quedan unas %1 h</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>quedan unos %1 min</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Tareas en curso</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Muestra la página de esta tarea</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Detener: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Iniciar sesión</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Registros </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Descargas de correo </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Nota</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>&amp;Acerca de Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Gestión</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Su grupo de usuarios no tiene este permiso.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Inicie sesión con un usuario que pueda abrir esta página o pida que se añada el permiso a su grupo.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>Aún no se ha autorizado el acceso a su carpeta personal.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: ha fallado</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: se ha detenido</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: ha terminado</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>&amp;Salida</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Aún no se ha indicado el archivo de salida.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>&amp;Formato de salida</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>La carpeta de salida ya contiene un elemento con el nombre del archivo zip. Muévalo o elija otra carpeta de salida.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Aún no se ha indicado el archivo de imagen. Elija dónde guardar la imagen.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>Las dos contraseñas son distintas. Escriba dos veces la misma contraseña.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Aún no hay ninguna contraseña. Escriba una.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>La contraseña es demasiado larga. Use 100 caracteres como máximo.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Sin carpeta se usa la actual: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>Esta carpeta ya contiene un elemento con el nombre del archivo zip.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>Esto es una carpeta. Añada un nombre de archivo.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>Esto no es una carpeta.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>La carpeta de este archivo no existe.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>Puede faltar espacio: el origen ocupa %1 y solo quedan %2.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Este archivo no existe.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Esta carpeta no existe.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Esta ruta parte de la carpeta actual: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Este archivo ya existe y se reemplazará.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Ya existe un elemento con este nombre. Elija otro nombre.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Esto no se puede leer.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Aquí no se puede escribir nada.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Esta carpeta aún no existe. Se creará.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(permisos)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Para analizar y limpiar, pulse «Autorizar» de nuevo y elija su carpeta personal.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Pulse primero «Autorizar» y elija su carpeta personal.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Pulse «Autorizar» de nuevo y elija esta carpeta: </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Elija un vídeo con la extensión .m4v, .mp4, .mpg, .mpeg o .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Elija dónde guardar el vídeo convertido.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Producto</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Proveedor</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>Se detendrán las tareas en curso. Los resultados que ya estén terminados se guardarán igualmente en su lugar.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Continuar</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Se conserva. La página Zip lo ofrecerá en el próximo inicio.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Aún hay tareas en curso. ¿Salir de todos modos?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Un archivo zip terminado aún no se ha guardado. ¿Salir de todos modos?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>Veloci&amp;dad</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>&amp;Leer</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>La base de datos está ocupada: otro programa la está usando. Vuelva a abrir esta página dentro de un momento.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Otra persona ha cambiado esta entrada mientras estaba abierta aquí.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>E&amp;liminar…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Otra persona ha eliminado esta entrada mientras estaba abierta aquí.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Aún no hay entradas.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Iniciar sesión…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Guardar de todos modos</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>Puede guardarla tal como la ve aquí o volver sin guardar.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>Las entradas se guardan en %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>No se puede acceder a las entradas de %1 desde las %2; lo que guarde ahora se perdería.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>E&amp;xistencias</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Gestión</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>No se pueden leer las entradas. Compruebe el archivo de la base de datos y vuelva a abrir esta página.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>&amp;Grupos de usuarios</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>&amp;Usuarios</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Repetir contraseña</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Volver a la velocidad habitual</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>No se ha podido iniciar %1. Compruebe que está instalado y reinicie Toolvane.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Descartar el archivo zip terminado</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Otro lugar…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Elegir otro lugar para el archivo zip terminado</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>La tarea se ha detenido.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Escuchar una muestra</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>Gua&amp;rdar</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>No se ha podido guardar. Compruebe los datos introducidos y el lugar de destino e inténtelo de nuevo.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>Se ha guardado la lectura. La encontrará en el archivo que ha elegido.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Elegir…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>M&amp;ostrar en la carpeta</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Mostrar el archivo creado en el gestor de archivos</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>En curso</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Contacto</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>Orige&amp;n</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Aún no se ha indicado el vídeo que se convertirá.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Síntesis de voz</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>El texto no se puede leer: espeak-ng no está instalado.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Velocidad en palabras por minuto</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Volver a la velocidad habitual</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Escuchar una muestra</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Lee un texto en voz alta o guarda la lectura como archivo de sonido.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Texto que se leerá en voz alta</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Escriba o pegue el texto que se leerá en voz alta</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Este texto es demasiado largo para leerlo de una vez. Divídalo en partes.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Aún no se ha indicado el origen. Elija primero con qué quiere trabajar.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Existencias</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>No hay nada que rellenar. «Guardar» añade una entrada en blanco.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Por ahora, las entradas de existencias solo contienen su número.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Sin compresión</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>&amp;Texto</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Aún no hay ningún texto que leer. Escriba o pegue uno primero.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Muestra la versión y qué más ofrece el desarrollador</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>Sitio &amp;web</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Abre el sitio web del desarrollador en el navegador</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Espacio total</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Papelera </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Descomprimir</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>M&amp;ostrar la carpeta</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Mostrar la carpeta de salida en el gestor de archivos</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Carpeta de salida</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>La carpeta en la que se creará la carpeta nueva</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Elegir la carpeta de salida</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Archivo zip que se descomprimirá</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>El archivo que se descomprimirá, con la extensión .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Elegir el archivo zip que se descomprimirá</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>La tarea se ha detenido. Lo descomprimido está en la carpeta nueva.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Descomprime un archivo zip en una carpeta nueva que lleva su nombre.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>No se ha podido descomprimir por completo el archivo. Compruebe que es un archivo zip completo y sin contraseña. Lo que se ha descomprimido hasta ahora está en la carpeta nueva.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>Se ha descomprimido el archivo zip. La carpeta nueva está en la carpeta de salida.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>&amp;Buscar actualizaciones</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Consultando el servidor de actualizaciones…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>&amp;Descargar</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 está listo para instalarse.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>Se ha comprobado la descarga. Su ruta está más abajo.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Se está descargando Toolvane %1.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>La lista de versiones era válida hasta el %1, así que pueden faltar versiones más recientes. Es posible que alguien esté reteniendo listas más recientes. Inténtelo de nuevo más tarde o desde otra red.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Lista de versiones: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Ruta del archivo descargado</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 está instalado.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Descarga de una actualización</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Última búsqueda: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Última búsqueda: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>No hay ningún servidor de actualizaciones configurado.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Escriba la dirección del canal del desarrollador en el archivo de configuración %1, como UpdateFeed en la sección [Addresses]. Después busque actualizaciones.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Esta copia de Toolvane se compiló sin la clave del desarrollador. No puede comprobar si las versiones son auténticas, así que solo muestra lo que se anuncia y no ofrece ninguna descarga.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>Esta versión no incluye notas.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>No se ha descargado Toolvane %1.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>No se ha abierto Toolvane %1.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Novedades</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Notas de la nueva versión</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>Abrir de &amp;nuevo</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>La conexión se ha interrumpido. Compruebe la red e inténtelo de nuevo.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>El servidor no ha podido demostrar su identidad: su certificado no es válido. Compruebe el reloj de este equipo o pruebe desde otra red.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>El archivo ya no está o no es el que se comprobó. Descárguelo de nuevo.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>La respuesta no tiene sentido, así que quizá no venga del servidor de actualizaciones. Compruebe su dirección o pruebe desde otra red.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Ha llegado menos de lo que el servidor había anunciado. Inténtelo de nuevo.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>Falta la fecha, así que podría ser una copia antigua. No se ha usado nada.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>La biblioteca que comprueba las firmas (libsodium) no está instalada. Instálela e inténtelo de nuevo.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>Lo que ha enviado el servidor no es una lista de versiones. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>No se ha podido guardar el archivo: %1. Compruebe que se puede escribir en la carpeta Descargas y que hay espacio en ella e inténtelo de nuevo.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Ningún programa ha podido abrir el archivo. Use «Mostrar en la carpeta» para llegar a él.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>La información es más antigua que la recibida anteriormente. Es posible que alguien haya retenido la más reciente. Inténtelo de nuevo más tarde o desde otra red.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>El servidor ha respondido con el error %1. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>Se ha detenido la operación.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>El servidor ha tardado demasiado en responder. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>El servidor ha enviado más de lo que había anunciado o de lo permitido, así que no se ha conservado nada.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>No ha habido respuesta. Compruebe la red e inténtelo de nuevo.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>La dirección no empieza por https o lleva a otra que no empieza así. Pida la dirección correcta al desarrollador.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>Falta la firma del desarrollador, así que no se ha usado nada.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>La firma del desarrollador no coincide, así que es posible que otra persona haya cambiado el contenido. No se ha conservado nada.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 está disponible.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>La lista de versiones ha caducado.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>La búsqueda de actualizaciones ha fallado.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>No se ha podido conectar con el servidor de actualizaciones.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>La respuesta del servidor de actualizaciones no es de confianza.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 está disponible, pero usted ha elegido omitir esta versión.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane está actualizado.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>&amp;Omitir esta versión</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>De&amp;tener</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Busca una versión más reciente de Toolvane cuando usted lo pida.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Compruebe si hay una versión más reciente.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>Ofrecer de nue&amp;vo</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Todos los derechos</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Un grupo eliminado</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Grupo actual: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Después de guardar: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>El grupo no cambia</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Cada usuario inicia sesión con un nombre y una contraseña y pertenece a un grupo.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Espacio en disco</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Acceso autorizado</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Mide el tamaño de las carpetas marcadas</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Elimina definitivamente las carpetas marcadas, sin volver a preguntar</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 bytes</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 liberados</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 liberados; el resto no: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Espacio en disco usado</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Casi lleno</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Carpeta autorizada</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>Su carpeta personal, una vez autorizado el acceso</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>No existe</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Detenido. Una carpeta no respondió y se dejó como estaba. Puede que algo montado en ella no esté accesible.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>No se ha podido empezar porque el sistema no permite más hilos. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>No es una carpeta</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Una parte no se puede leer</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>se llega a través de un enlace</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>hay algo montado ahí</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>sin permiso</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>No se ha eliminado nada: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Mide lo que ocupa espacio sin necesidad en su carpeta personal y elimina las carpetas que marque.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Acceso no autorizado</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>No se puede leer</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Ya existe un usuario con este nombre. Elija otro nombre.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Grupo de usuarios</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Un grupo determina qué pueden ver y cambiar sus usuarios.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Permisos del grupo</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Ya existe un grupo con este nombre. Elija otro nombre.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>El grupo aún tiene usuarios.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Mueva sus usuarios a otro grupo o elimínelos y después elimine el grupo.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>El grupo aún no tiene nombre. Escriba uno.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>El nombre del grupo es demasiado largo. Use 100 caracteres como máximo.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>El usuario aún no tiene nombre. Escriba uno.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>El nombre del usuario es demasiado largo. Use 100 caracteres como máximo.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>Vo&amp;z</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>Volu&amp;men</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>El volumen aún no tiene nombre. Escriba el nombre que debe mostrar la imagen.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Abre el sitio web del desarrollador en el navegador</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Elija una herramienta a la izquierda.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Herramientas cotidianas para archivos y multimedia en un solo lugar.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>Esta no es su carpeta personal.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Comprimir</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>¿Descartar el archivo zip terminado?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>El archivo zip aún no se ha guardado.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>No guardado: la carpeta no existe.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>No guardado: falta espacio.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Detenido antes de guardarlo.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>No guardado: el nombre ya existe.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>No guardado: allí no se puede escribir.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Archivo zip que se creará</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>El archivo que se creará, con la extensión .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Elegir el archivo zip que se creará</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Carpeta que se comprimirá</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>La carpeta que se comprimirá</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Elegir la carpeta que se comprimirá</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Comprime todo el contenido de una carpeta en un solo archivo zip.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>No se ha podido crear el archivo zip. Compruebe que la carpeta existe, no está vacía y se puede leer, y que hay espacio en el disco.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Ya existe un elemento con este nombre. Elija otro nombre para el archivo zip.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>El archivo zip aún no tiene nombre. Elija dónde guardarlo.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>El archivo zip está listo.</translation>
    </message>
</context>
</TS>
