<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Applications de l’éditeur</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>Aucune application n’est répertoriée.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>À propos de Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Version %1. Les outils du quotidien pour vos fichiers et médias, réunis en un seul endroit.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Web</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Ajouter</translation>
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
        <translation>L’accès n’a pas été autorisé.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Autoriser</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Conversion vidéo</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Format de sortie</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Vidéo à créer</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>La vidéo à créer, avec l’extension .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Choisir la vidéo à créer</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_fr.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Vidéo à convertir</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>La vidéo à convertir</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Choisir la vidéo à convertir</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Convertit une vidéo dans un format adapté à l’appareil qui doit la lire.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Meilleure (taille minimale)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Caches </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Analyser</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Nettoyer</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Les outils du quotidien pour vos fichiers et médias, dans une seule fenêtre.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>La page à ouvrir : %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>Il n’existe pas de page « %1 ». Voici les pages disponibles : %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>Com&amp;pression</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>Con&amp;vertir</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>La vidéo a été convertie. Elle se trouve dans le fichier que vous avez choisi.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>La vidéo n’a pas pu être convertie. Vérifiez que la source est une vidéo complète et que l’espace libre est suffisant, puis réessayez.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Groupe par défaut</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Créé par Toolvane pour commencer</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Supprimer l’entrée sélectionnée ?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>Elle ne pourra pas être récupérée.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Image disque</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Crée une image disque (DMG) de tout le contenu d’un dossier.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Téléchargements </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Écrit un e-mail à l’éditeur</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Plus rapide</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Espace libre</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>&amp;Créer</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>Le guide n’a pas pu être ouvert. Cherchez-le ici :</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Fichier image à créer</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>L’image à créer, avec l’extension .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Choisir le fichier image à créer</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Dossier source</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>Le dossier à placer dans l’image</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Choisir le dossier source</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Nom du volume</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>Le nom que l’image affiche une fois ouverte</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Inventaire</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>Image de CD</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Crée à partir d’un dossier une image de CD (ISO) lisible par tous les systèmes.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 éléments, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>reste env. %1 h</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>reste env. %1 min</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Tâches en cours</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Affiche la page de cette tâche</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Arrêter : %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>Se &amp;connecter</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Connexion</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Journaux </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Téléchargements mail </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Note</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>À &amp;propos de Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Gestion</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Votre groupe d’utilisateurs n’a pas ce droit.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Connectez-vous avec un compte qui peut ouvrir cette page, ou demandez que ce droit soit ajouté à votre groupe.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>L’accès à votre dossier personnel n’est pas encore autorisé.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1 : échec de la tâche</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1 : tâche arrêtée</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1 : tâche terminée</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>&amp;Sortie</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Aucun fichier de sortie n’est indiqué.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>For&amp;mat de sortie</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>Le dossier de sortie contient déjà un élément qui porte le nom de l’archive. Déplacez-le ou choisissez un autre dossier de sortie.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Aucun fichier image n’est indiqué. Choisissez où enregistrer l’image.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>Les deux mots de passe sont différents. Saisissez deux fois le même mot de passe.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Aucun mot de passe n’est indiqué. Saisissez-en un.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>Le mot de passe est trop long. Utilisez 100 caractères au maximum.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Sans dossier, le dossier actuel est utilisé : %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>Ce dossier contient déjà un élément qui porte le nom de l’archive.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>C’est un dossier. Ajoutez un nom de fichier.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>Ce n’est pas un dossier.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>Le dossier de ce fichier n’existe pas.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>La place risque de manquer : la source fait %1, il ne reste que %2.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Ce dossier n’existe pas.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Ce chemin part du dossier actuel : %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Ce fichier existe et sera remplacé.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Un élément portant ce nom existe déjà. Choisissez un autre nom.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Cet élément ne peut pas être lu.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Rien ne peut être écrit ici.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Ce dossier n’existe pas encore. Il sera créé.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(droits)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Pour analyser et nettoyer, cliquez de nouveau sur « Autoriser » et choisissez votre dossier personnel.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Cliquez d’abord sur « Autoriser » et choisissez votre dossier personnel.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Cliquez de nouveau sur « Autoriser » et choisissez ce dossier : </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Choisissez une vidéo portant l’extension .m4v, .mp4, .mpg, .mpeg ou .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Choisissez où enregistrer la vidéo convertie.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Produit</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Fournisseur</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>Les tâches en cours seront arrêtées. Un résultat déjà terminé sera tout de même placé à l’endroit prévu.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Continuer</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Elle est conservée. La page Zip la proposera au prochain démarrage.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Une tâche est encore en cours. Quitter quand même ?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Une archive terminée n’est pas encore enregistrée. Quitter quand même ?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>&amp;Débit</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>&amp;Lire</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>La base de données est occupée : un autre programme l’utilise. Rouvrez cette page dans un instant.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Quelqu’un d’autre a modifié cette entrée pendant qu’elle était ouverte ici.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Quelqu’un d’autre a supprimé cette entrée pendant qu’elle était ouverte ici.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Il n’y a pas encore d’entrées.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>Se &amp;connecter…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Enregistrer quand même</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>Vous pouvez l’enregistrer telle que vous la voyez ici, ou revenir sans enregistrer.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>Les entrées sont conservées sur %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>Les entrées sur %1 sont inaccessibles depuis %2 ; ce que vous enregistrez maintenant serait perdu.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>S&amp;tock</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Gestion</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>Les entrées ne peuvent pas être lues. Vérifiez le fichier de la base de données, puis rouvrez cette page.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>&amp;Groupes d’utilisateurs</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>&amp;Utilisateurs</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Confirmer le mot de passe</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Revenir au débit habituel</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>Impossible de démarrer %1. Vérifiez qu’il est installé, puis redémarrez Toolvane.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Abandonner l’archive terminée</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Autre endroit…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Choisir un autre endroit pour l’archive terminée</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>La tâche a été arrêtée.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Écouter un extrait</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>L’enregistrement a échoué. Vérifiez ce que vous avez saisi et l’emplacement choisi, puis réessayez.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>La lecture à voix haute a été enregistrée. Elle se trouve dans le fichier que vous avez choisi.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Choisir…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>Afficher le dossie&amp;r</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Afficher le fichier créé dans le gestionnaire de fichiers</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>En cours</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Rester en contact</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>So&amp;urce</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Aucune vidéo à convertir n’est indiquée.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Synthèse vocale</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>Le texte ne peut pas être lu : espeak-ng n’est pas installé.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Débit en mots par minute</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Revenir au débit habituel</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Écouter un extrait</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Lit un texte à voix haute ou enregistre la lecture dans un fichier audio.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Texte à lire à voix haute</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Saisissez ou collez le texte à lire à voix haute</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Ce texte est trop long pour être lu d’une traite. Prenez-le par parties.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Aucune source n’est indiquée. Choisissez d’abord l’élément à traiter.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Stock</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>Il n’y a rien à remplir. « Enregistrer » ajoute une entrée vide.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Pour l’instant, les entrées du stock ne contiennent que leur numéro.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Sans compression</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>Te&amp;xte</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Il n’y a pas encore de texte à lire. Saisissez ou collez d’abord un texte.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Affiche la version et ce que l’éditeur propose d’autre</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>Site &amp;web</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Ouvre le site web de l’éditeur dans votre navigateur</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Espace total</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Corbeille </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Extraire</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>Afficher le dossie&amp;r</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Afficher le dossier de sortie dans le gestionnaire de fichiers</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>Le dossier dans lequel créer le nouveau dossier</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Choisir le dossier de sortie</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Archive à extraire</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>L’archive à extraire, avec l’extension .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Choisir l’archive à extraire</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>La tâche a été arrêtée. Ce qui a été extrait est dans le nouveau dossier.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Extrait une archive zip dans un nouveau dossier qui porte son nom.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>L’archive n’a pas pu être extraite entièrement. Vérifiez qu’il s’agit d’une archive zip complète et sans mot de passe. Ce qui a été extrait jusqu’ici se trouve dans le nouveau dossier.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>L’archive a été extraite. Le nouveau dossier se trouve dans le dossier de sortie.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>Re&amp;chercher des mises à jour</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Interrogation du serveur de mises à jour…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>&amp;Télécharger</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>Toolvane %1 est prêt à être installé.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>Le fichier téléchargé a été vérifié. Son chemin est indiqué ci-dessous.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>Téléchargement de Toolvane %1 en cours.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>La liste des versions était valable jusqu’au %1. Des versions plus récentes peuvent donc y manquer. Quelqu’un retient peut-être les listes plus récentes. Réessayez plus tard ou depuis un autre réseau.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Liste des versions : %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Chemin du fichier téléchargé</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>Toolvane %1 est installé.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Téléchargement d’une mise à jour</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Dernière recherche : %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Dernière recherche : %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>Aucun serveur de mises à jour n’est configuré.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Inscrivez l’adresse du flux de l’éditeur dans le fichier de réglages %1, sous le nom UpdateFeed dans la section [Addresses]. Recherchez ensuite des mises à jour.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Cette copie de Toolvane a été compilée sans la clé de l’éditeur. Elle ne peut pas vérifier que les versions sont authentiques : elle montre seulement ce qui est annoncé et ne propose aucun téléchargement.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>Cette version n’est accompagnée d’aucune note.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>Toolvane %1 n’a pas été téléchargé.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>Toolvane %1 n’a pas été ouvert.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Nouveautés</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Notes de la nouvelle version</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>Ouvrir à &amp;nouveau</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>La connexion a été interrompue. Vérifiez votre réseau et réessayez.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>Le serveur n’a pas pu prouver son identité : son certificat n’est pas valable. Vérifiez l’heure de cet ordinateur ou essayez depuis un autre réseau.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>Le fichier a disparu ou n’est plus celui qui a été vérifié. Téléchargez-le de nouveau.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>La réponse n’a pas de sens. Elle ne vient peut-être pas du serveur de mises à jour. Vérifiez son adresse ou essayez depuis un autre réseau.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Le serveur a envoyé moins de données qu’annoncé. Réessayez.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>Aucune date n’est indiquée : il peut s’agir d’une ancienne copie. Rien n’a été utilisé.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>La bibliothèque qui vérifie les signatures (libsodium) n’est pas installée. Installez-la et réessayez.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>Le serveur n’a pas envoyé de liste de versions. Réessayez plus tard.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>Le fichier n’a pas pu être enregistré : %1. Vérifiez que le dossier Téléchargements est accessible en écriture et dispose d’assez de place, puis réessayez.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Aucun programme n’a pu ouvrir le fichier. Utilisez « Afficher le dossier » pour y accéder.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>Les informations reçues sont plus anciennes que les précédentes. Quelqu’un a peut-être retenu les plus récentes. Réessayez plus tard ou depuis un autre réseau.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>Le serveur a répondu par l’erreur %1. Réessayez plus tard.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>L’opération a été arrêtée.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>Le serveur a mis trop de temps à répondre. Réessayez plus tard.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>Le serveur a envoyé plus de données qu’annoncé ou que permis. Rien n’a donc été conservé.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Aucune réponse n’est arrivée. Vérifiez votre réseau et réessayez.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>L’adresse ne commence pas par https ou mène à une adresse qui ne commence pas ainsi. Demandez la bonne adresse à l’éditeur.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>La signature de l’éditeur est absente. Rien n’a donc été utilisé.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>La signature de l’éditeur ne correspond pas. Le contenu a peut-être été modifié par quelqu’un d’autre. Rien n’a été conservé.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>Toolvane %1 est disponible.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>La liste des versions a expiré.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>La recherche de mises à jour a échoué.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>Le serveur de mises à jour n’a pas pu être joint.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>La réponse du serveur de mises à jour n’est pas fiable.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>Toolvane %1 est disponible, mais vous avez choisi d’ignorer cette version.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>Toolvane est à jour.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>&amp;Ignorer cette version</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Recherche une version plus récente de Toolvane chaque fois que vous le demandez.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Vérifiez s’il existe une version plus récente.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>&amp;Proposer à nouveau</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Tous les droits</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Un groupe supprimé</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Groupe actuel : %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Après l’enregistrement : %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>Le groupe reste inchangé</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Chaque utilisateur se connecte avec un nom et un mot de passe et appartient à un groupe.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Espace disque</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Accès autorisé</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Mesure la taille des dossiers cochés</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Supprime définitivement les dossiers cochés, sans demander de confirmation</translation>
    </message>
    <message id="UserCache.Empty">
        <source>0 bytes</source>
        <translation>0 octet</translation>
    </message>
    <message id="UserCache.Freed">
        <source>%1 freed</source>
        <translation>%1 libérés</translation>
    </message>
    <message id="UserCache.FreedPartly">
        <source>%1 freed, some stayed: %2</source>
        <translation>%1 libérés, le reste non : %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Espace disque utilisé</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Presque plein</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Dossier autorisé</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>Votre dossier personnel, une fois l’accès autorisé</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Absent</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Arrêté. Un dossier n’a pas répondu et a été laissé de côté. Un système de fichiers qui y est monté est peut-être inaccessible.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>L’opération n’a pas pu commencer, car le système n’autorise pas d’autres threads. Fermez d’autres programmes et réessayez.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>Ce n’est pas un dossier</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Une partie est illisible</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>le chemin passe par un lien</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>un système de fichiers y est monté</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>autorisation manquante</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Rien n’a été supprimé : %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Mesure ce qui encombre votre dossier personnel et supprime les dossiers que vous cochez.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Accès non autorisé</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Illisible</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Un utilisateur portant ce nom existe déjà. Choisissez un autre nom.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Groupe d’utilisateurs</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Un groupe détermine ce que ses utilisateurs peuvent voir et modifier.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Droits du groupe</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Un groupe portant ce nom existe déjà. Choisissez un autre nom.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>Le groupe contient encore des utilisateurs.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Déplacez ses utilisateurs vers un autre groupe ou supprimez-les, puis supprimez le groupe.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>Le groupe n’a pas encore de nom. Saisissez-en un.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>Le nom du groupe est trop long. Utilisez 100 caractères au maximum.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>L’utilisateur n’a pas encore de nom. Saisissez-en un.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>Le nom de l’utilisateur est trop long. Utilisez 100 caractères au maximum.</translation>
    </message>
    <message id="View">
        <source>View</source>
        <translation>Voir</translation>
    </message>
    <message id="Voice">
        <source>&amp;Voice</source>
        <translation>Vo&amp;ix</translation>
    </message>
    <message id="Volume">
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>Le volume n’a pas encore de nom. Saisissez le nom que l’image doit afficher.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Ouvre le site web de l’éditeur dans votre navigateur</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Choisissez un outil à gauche.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Les outils du quotidien pour vos fichiers et médias, réunis en un seul endroit.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>Ce n’est pas votre dossier personnel.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Compresser</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Abandonner l’archive terminée ?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>L’archive n’est pas encore enregistrée.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Non enregistrée : le dossier n’existe pas.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Non enregistrée : la place manque.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Arrêtée avant l’enregistrement.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Non enregistrée : ce nom est pris.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Non enregistrée : écriture impossible à cet endroit.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Archive à créer</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>L’archive à créer, avec l’extension .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Choisir l’archive à créer</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Dossier à compresser</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>Le dossier à compresser</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Choisir le dossier à compresser</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Compresse tout le contenu d’un dossier dans une seule archive zip.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>L’archive n’a pas pu être créée. Vérifiez que le dossier existe, n’est pas vide et peut être lu, et que l’espace libre du disque est suffisant.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Un élément portant ce nom existe déjà. Choisissez un autre nom pour l’archive.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>L’archive n’a pas encore de nom. Choisissez où l’enregistrer.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>L’archive est prête.</translation>
    </message>
</context>
</TS>
