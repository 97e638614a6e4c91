<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name></name>
    <message id="About.Apps.Name">
        <source>Applications of the maker</source>
        <translation>Aplicativos do desenvolvedor</translation>
    </message>
    <message id="About.Email">
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message id="About.NothingListed">
        <source>No applications are listed.</source>
        <translation>Não há aplicativos na lista.</translation>
    </message>
    <message id="About.Reload">
        <source>&amp;Reload</source>
        <translation>&amp;Recarregar</translation>
    </message>
    <message id="About.Title">
        <source>About Toolvane</source>
        <translation>Sobre o Toolvane</translation>
    </message>
    <message id="About.Version">
        <source>Version %1. Everyday file and media tools in one place.</source>
        <translation>Versão %1. Ferramentas do dia a dia para arquivos e mídias em um só lugar.</translation>
    </message>
    <message id="About.Web">
        <source>&amp;Web</source>
        <translation>&amp;Web</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message id="AppName">
        <source>Toolvane</source>
        <translation>Toolvane</translation>
    </message>
    <message id="Apps">
        <source>Applications</source>
        <translation>Aplicativos</translation>
    </message>
    <message id="Authorization Failed">
        <source>Access was not granted.</source>
        <translation>O acesso não foi autorizado.</translation>
    </message>
    <message id="Authorize">
        <source>Authorize</source>
        <translation>Autorizar</translation>
    </message>
    <message id="AV Convert">
        <source>AV Convert</source>
        <translation>Converter vídeo</translation>
    </message>
    <message id="AVConvert.Format.Name">
        <source>Output format</source>
        <translation>Formato de saída</translation>
    </message>
    <message id="AVConvert.Output.Name">
        <source>Video to make</source>
        <translation>Vídeo a ser criado</translation>
    </message>
    <message id="AVConvert.Output.Placeholder">
        <source>The video to make, ending in .m4v</source>
        <translation>O vídeo a ser criado, com a extensão .m4v</translation>
    </message>
    <message id="AVConvert.OutputSelect.Name">
        <source>Select the video to make</source>
        <translation>Escolher o vídeo a ser criado</translation>
    </message>
    <message id="AVConvert.Presets">
        <source>avconvert.plist</source>
        <translation>avconvert_pt_BR.plist</translation>
    </message>
    <message id="AVConvert.Source.Name">
        <source>Video to convert</source>
        <translation>Vídeo a ser convertido</translation>
    </message>
    <message id="AVConvert.Source.Placeholder">
        <source>The video to convert</source>
        <translation>O vídeo a ser convertido</translation>
    </message>
    <message id="AVConvert.SourceSelect.Name">
        <source>Select the video to convert</source>
        <translation>Escolher o vídeo a ser convertido</translation>
    </message>
    <message id="AVConvert.Subtitle">
        <source>Converts a video into a format that suits the device that is to play it.</source>
        <translation>Converte um vídeo para um formato adequado ao dispositivo que vai reproduzi-lo.</translation>
    </message>
    <message id="Better">
        <source>Better (smallest)</source>
        <translation>Melhor (menor tamanho)</translation>
    </message>
    <message id="Caches">
        <source>Caches </source>
        <translation>Caches </translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="Category">
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message id="Check">
        <source>Check</source>
        <translation>Analisar</translation>
    </message>
    <message id="Clean">
        <source>Clean</source>
        <translation>Limpar</translation>
    </message>
    <message id="Clear">
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message id="CommandLine.Description">
        <source>Everyday file and media tools in one window.</source>
        <translation>Ferramentas do dia a dia para arquivos e mídias em uma só janela.</translation>
    </message>
    <message id="CommandLine.Help">
        <source>Show this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message id="CommandLine.Page">
        <source>The page to open: %1.</source>
        <translation>A página a ser aberta: %1.</translation>
    </message>
    <message id="CommandLine.UnknownPage">
        <source>There is no page &quot;%1&quot;. These are the pages: %2.</source>
        <translation>Não existe a página “%1”. Estas são as páginas: %2.</translation>
    </message>
    <message id="CommandLine.Version">
        <source>Show the version.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message id="CompressRatio">
        <source>Com&amp;pression</source>
        <translation>Com&amp;pressão</translation>
    </message>
    <message id="Convert">
        <source>Con&amp;vert</source>
        <translation>Con&amp;verter</translation>
    </message>
    <message id="Convert is completed.">
        <source>The video was converted. You find it in the file that you chose.</source>
        <translation>O vídeo foi convertido. Ele está no arquivo que você escolheu.</translation>
    </message>
    <message id="Convert is failed.">
        <source>The video could not be converted. Check that the source is a complete video and that there is enough free space, then try again.</source>
        <translation>Não foi possível converter o vídeo. Verifique se a origem é um vídeo completo e se há espaço livre suficiente e tente novamente.</translation>
    </message>
    <message id="DefaultUserGroup">
        <source>Default Group</source>
        <translation>Grupo padrão</translation>
    </message>
    <message id="DefaultUserGroupMemo">
        <source>Made by Toolvane for a start</source>
        <translation>Criado pelo Toolvane para começar</translation>
    </message>
    <message id="DelConfirm">
        <source>Delete the selected entry?</source>
        <translation>Excluir o item selecionado?</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message id="DelInfo">
        <source>It cannot be brought back.</source>
        <translation>Não será possível recuperá-lo.</translation>
    </message>
    <message id="Desc">
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message id="DMG">
        <source>Disk Image</source>
        <translation>Imagem de disco</translation>
    </message>
    <message id="DMG.Subtitle">
        <source>Makes a disk image (DMG) of everything in a folder.</source>
        <translation>Cria uma imagem de disco (DMG) com todo o conteúdo de uma pasta.</translation>
    </message>
    <message id="Downloads">
        <source>Downloads </source>
        <translation>Downloads </translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message id="Email">
        <source>Writes to the maker</source>
        <translation>Escreve um e-mail para o desenvolvedor</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Mais rápida</translation>
    </message>
    <message id="FreeDisk">
        <source>Free space</source>
        <translation>Espaço livre</translation>
    </message>
    <message id="General">
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message id="Generate">
        <source>&amp;Generate</source>
        <translation>C&amp;riar</translation>
    </message>
    <message id="Guide.Fail">
        <source>The guide could not be opened. Look for it here:</source>
        <translation>Não foi possível abrir o guia. Procure-o aqui:</translation>
    </message>
    <message id="Icon">
        <source>Icon</source>
        <translation>Ícone</translation>
    </message>
    <message id="Image.Output.Name">
        <source>Image file to make</source>
        <translation>Arquivo de imagem a ser criado</translation>
    </message>
    <message id="Image.Output.Placeholder">
        <source>The image to make, ending in .%1</source>
        <translation>A imagem a ser criada, com a extensão .%1</translation>
    </message>
    <message id="Image.OutputSelect.Name">
        <source>Select the image file to make</source>
        <translation>Escolher o arquivo de imagem a ser criado</translation>
    </message>
    <message id="Image.Source.Name">
        <source>Source folder</source>
        <translation>Pasta de origem</translation>
    </message>
    <message id="Image.Source.Placeholder">
        <source>The folder to put into the image</source>
        <translation>A pasta a ser colocada na imagem</translation>
    </message>
    <message id="Image.SourceSelect.Name">
        <source>Select the source folder</source>
        <translation>Escolher a pasta de origem</translation>
    </message>
    <message id="Image.Volume.Name">
        <source>Volume name</source>
        <translation>Nome do volume</translation>
    </message>
    <message id="Image.Volume.Placeholder">
        <source>The name that the image shows when it is opened</source>
        <translation>O nome que a imagem mostra ao ser aberta</translation>
    </message>
    <message id="Inventory">
        <source>Inventory</source>
        <translation>Inventário</translation>
    </message>
    <message id="ISO">
        <source>CD Image</source>
        <translation>Imagem de CD</translation>
    </message>
    <message id="ISO.Subtitle">
        <source>Makes a CD image (ISO) of a folder that every desktop system can read.</source>
        <translation>Cria, a partir de uma pasta, uma imagem de CD (ISO) que qualquer sistema consegue ler.</translation>
    </message>
    <message id="Jobs.Items">
        <source>%1 items, %2</source>
        <translation>%1 itens, %2</translation>
    </message>
    <message id="Jobs.Left">
        <source>%1 left</source>
        <translation>faltam %1</translation>
    </message>
    <message id="Jobs.Left.Hours">
        <source>about %1 h left</source>
        <translation>faltam umas %1 h</translation>
    </message>
    <message id="Jobs.Left.Minutes">
        <source>about %1 min left</source>
        <translation>faltam uns %1 min</translation>
    </message>
    <message id="Jobs.Name">
        <source>Running work</source>
        <translation>Tarefas em andamento</translation>
    </message>
    <message id="Jobs.Percent">
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message id="Jobs.Show.Tip">
        <source>Shows the page of this run</source>
        <translation>Mostra a página desta tarefa</translation>
    </message>
    <message id="Jobs.Stop">
        <source>Stop</source>
        <translation>Interromper</translation>
    </message>
    <message id="Jobs.Stop.Name">
        <source>Stop: %1</source>
        <translation>Interromper: %1</translation>
    </message>
    <message id="Login.Button">
        <source>&amp;Log In</source>
        <translation>&amp;Entrar</translation>
    </message>
    <message id="Login.Password.Name">
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message id="Login.Title">
        <source>Log In</source>
        <translation>Entrar</translation>
    </message>
    <message id="Login.User.Name">
        <source>User name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message id="Logs">
        <source>Logs </source>
        <translation>Registros </translation>
    </message>
    <message id="Mail Download">
        <source>Mail downloads </source>
        <translation>Downloads de e-mail </translation>
    </message>
    <message id="Memo">
        <source>Memo</source>
        <translation>Observação</translation>
    </message>
    <message id="Menu.About">
        <source>&amp;About Toolvane</source>
        <translation>So&amp;bre o Toolvane</translation>
    </message>
    <message id="Menu.File">
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message id="Menu.Guide">
        <source>&amp;Guide</source>
        <translation>&amp;Guia</translation>
    </message>
    <message id="Menu.Help">
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message id="Menu.Quit">
        <source>&amp;Quit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message id="Menu.Records">
        <source>&amp;Records</source>
        <translation>&amp;Cadastros</translation>
    </message>
    <message id="Menu.Tools">
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="NoPermissionAlert">
        <source>Your user group does not have this right.</source>
        <translation>Seu grupo de usuários não tem esta permissão.</translation>
    </message>
    <message id="NoPermissionInfo">
        <source>Log in as somebody who may open this page, or ask for the right to be added to your group.</source>
        <translation>Entre com um usuário que possa abrir esta página ou peça que a permissão seja adicionada ao seu grupo.</translation>
    </message>
    <message id="Not Authorized Error">
        <source>Access to your home folder is not granted yet.</source>
        <translation>O acesso à sua pasta pessoal ainda não foi autorizado.</translation>
    </message>
    <message id="Notice.Failed">
        <source>%1 failed</source>
        <translation>%1: a tarefa falhou</translation>
    </message>
    <message id="Notice.Show">
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message id="Notice.Stopped">
        <source>%1 was stopped</source>
        <translation>%1: a tarefa foi interrompida</translation>
    </message>
    <message id="Notice.Succeeded">
        <source>%1 is finished</source>
        <translation>%1: a tarefa foi concluída</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Operation">
        <source>Operation</source>
        <translation>Operação</translation>
    </message>
    <message id="Output">
        <source>&amp;Output</source>
        <translation>Saí&amp;da</translation>
    </message>
    <message id="Output file cannot be null.">
        <source>There is no output file yet.</source>
        <translation>Nenhum arquivo de saída foi indicado.</translation>
    </message>
    <message id="Output Options">
        <source>Output For&amp;mat</source>
        <translation>For&amp;mato de saída</translation>
    </message>
    <message id="OutputFolderExists">
        <source>The output folder already holds an item with the archive's name. Move it away or choose another output folder.</source>
        <translation>A pasta de saída já contém um item com o nome do arquivo zip. Mova-o ou escolha outra pasta de saída.</translation>
    </message>
    <message id="OutputNull">
        <source>There is no image file to write to yet. Choose where the image goes.</source>
        <translation>Nenhum arquivo de imagem foi indicado. Escolha onde salvar a imagem.</translation>
    </message>
    <message id="Password">
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message id="PasswordNotSameAlert">
        <source>The two passwords differ. Enter the same password twice.</source>
        <translation>As duas senhas são diferentes. Digite a mesma senha duas vezes.</translation>
    </message>
    <message id="PasswordNullAlert">
        <source>There is no password yet. Enter one.</source>
        <translation>Nenhuma senha foi indicada. Digite uma.</translation>
    </message>
    <message id="PasswordOverLenAlert">
        <source>The password is too long. Use at most 100 characters.</source>
        <translation>A senha é longa demais. Use no máximo 100 caracteres.</translation>
    </message>
    <message id="Path.CurrentFolder">
        <source>Without a folder, the current one is used: %1</source>
        <translation>Sem uma pasta, é usada a atual: %1</translation>
    </message>
    <message id="Path.FolderTaken">
        <source>This folder already holds an item with the archive's name.</source>
        <translation>Esta pasta já contém um item com o nome do arquivo zip.</translation>
    </message>
    <message id="Path.NoFile">
        <source>This is a folder. Add the name of a file.</source>
        <translation>Isto é uma pasta. Acrescente um nome de arquivo.</translation>
    </message>
    <message id="Path.NoFolder">
        <source>This is not a folder.</source>
        <translation>Isto não é uma pasta.</translation>
    </message>
    <message id="Path.NoPlace">
        <source>The folder for this file does not exist.</source>
        <translation>A pasta deste arquivo não existe.</translation>
    </message>
    <message id="Path.NoRoom">
        <source>There may not be enough room: the source has %1, only %2 are free.</source>
        <translation>Pode faltar espaço: a origem tem %1 e só há %2 livres.</translation>
    </message>
    <message id="Path.NoSuchFile">
        <source>This file does not exist.</source>
        <translation>Este arquivo não existe.</translation>
    </message>
    <message id="Path.NoSuchFolder">
        <source>This folder does not exist.</source>
        <translation>Esta pasta não existe.</translation>
    </message>
    <message id="Path.Relative">
        <source>This path starts in the current folder: %1</source>
        <translation>Este caminho parte da pasta atual: %1</translation>
    </message>
    <message id="Path.Replaced">
        <source>This file exists and will be replaced.</source>
        <translation>Este arquivo já existe e será substituído.</translation>
    </message>
    <message id="Path.Taken">
        <source>Something with this name already exists. Choose another name.</source>
        <translation>Já existe um item com este nome. Escolha outro nome.</translation>
    </message>
    <message id="Path.Unreadable">
        <source>This cannot be read.</source>
        <translation>Isto não pode ser lido.</translation>
    </message>
    <message id="Path.Unwritable">
        <source>Nothing can be written here.</source>
        <translation>Nada pode ser gravado aqui.</translation>
    </message>
    <message id="Path.WillBeMade">
        <source>This folder does not exist yet. It will be made.</source>
        <translation>Esta pasta ainda não existe. Ela será criada.</translation>
    </message>
    <message id="Permission">
        <source>Rights</source>
        <translation>(permissões)</translation>
    </message>
    <message id="Please authorize again">
        <source>To check and clean, press Authorize again and choose your home folder.</source>
        <translation>Para analisar e limpar, clique em “Autorizar” novamente e escolha sua pasta pessoal.</translation>
    </message>
    <message id="Please authorize first">
        <source>Press Authorize first and choose your home folder.</source>
        <translation>Primeiro, clique em “Autorizar” e escolha sua pasta pessoal.</translation>
    </message>
    <message id="Please authorize to ">
        <source>Press Authorize again and choose </source>
        <translation>Clique em “Autorizar” novamente e escolha esta pasta: </translation>
    </message>
    <message id="Please select m4v,mp4,mpg,mpeg or avi video file.">
        <source>Choose a video that ends in .m4v, .mp4, .mpg, .mpeg or .avi.</source>
        <translation>Escolha um vídeo com a extensão .m4v, .mp4, .mpg, .mpeg ou .avi.</translation>
    </message>
    <message id="Please specify the output file.">
        <source>Choose where the converted video goes.</source>
        <translation>Escolha onde salvar o vídeo convertido.</translation>
    </message>
    <message id="Product">
        <source>Product</source>
        <translation>Produto</translation>
    </message>
    <message id="Progress">
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message id="Provider">
        <source>Provider</source>
        <translation>Fornecedor</translation>
    </message>
    <message id="Quit.Consequence">
        <source>What runs now is stopped. A result that is already finished is still brought to its place.</source>
        <translation>As tarefas em andamento serão interrompidas. Um resultado já concluído ainda será colocado no lugar escolhido.</translation>
    </message>
    <message id="Quit.KeepWorking">
        <source>Keep Working</source>
        <translation>Continuar</translation>
    </message>
    <message id="Quit.Kept">
        <source>It is kept. The Zip page offers it again when Toolvane starts next.</source>
        <translation>Ele é mantido. A página Zip o oferecerá no próximo início.</translation>
    </message>
    <message id="Quit.Question">
        <source>Something is still running. Quit anyway?</source>
        <translation>Ainda há tarefas em andamento. Sair mesmo assim?</translation>
    </message>
    <message id="Quit.Quit">
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message id="Quit.Unplaced">
        <source>A finished archive has not been saved yet. Quit anyway?</source>
        <translation>Um arquivo zip concluído ainda não foi salvo. Sair mesmo assim?</translation>
    </message>
    <message id="Rate">
        <source>&amp;Rate</source>
        <translation>&amp;Velocidade</translation>
    </message>
    <message id="Read">
        <source>Rea&amp;d</source>
        <translation>&amp;Ler</translation>
    </message>
    <message id="Records.Add">
        <source>&amp;Add…</source>
        <translation>&amp;Adicionar…</translation>
    </message>
    <message id="Records.Busy">
        <source>The database is busy: another program is using it. Open this page again in a moment.</source>
        <translation>O banco de dados está ocupado: outro programa o está usando. Abra esta página de novo daqui a pouco.</translation>
    </message>
    <message id="Records.Changed">
        <source>Somebody else changed this entry while it was open here.</source>
        <translation>Outra pessoa alterou esta entrada enquanto ela estava aberta aqui.</translation>
    </message>
    <message id="Records.Delete">
        <source>&amp;Delete…</source>
        <translation>E&amp;xcluir…</translation>
    </message>
    <message id="Records.Deleted">
        <source>Somebody else deleted this entry while it was open here.</source>
        <translation>Outra pessoa excluiu esta entrada enquanto ela estava aberta aqui.</translation>
    </message>
    <message id="Records.Edit">
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message id="Records.Empty">
        <source>There are no entries yet.</source>
        <translation>Ainda não há itens.</translation>
    </message>
    <message id="Records.LogIn">
        <source>&amp;Log In…</source>
        <translation>&amp;Entrar…</translation>
    </message>
    <message id="Records.SaveAnyway">
        <source>&amp;Save Anyway</source>
        <translation>&amp;Salvar mesmo assim</translation>
    </message>
    <message id="Records.SaveAnyway.Info">
        <source>You can save it as you see it here, or go back without saving.</source>
        <translation>Você pode salvá-la como a vê aqui ou voltar sem salvar.</translation>
    </message>
    <message id="Records.Service">
        <source>The records are kept at %1.</source>
        <translation>As entradas ficam em %1.</translation>
    </message>
    <message id="Records.Service.Lost">
        <source>The records at %1 cannot be reached since %2; what you save now would be lost.</source>
        <translation>As entradas em %1 estão inacessíveis desde %2; o que você salvar agora seria perdido.</translation>
    </message>
    <message id="Records.Stock">
        <source>&amp;Stock</source>
        <translation>E&amp;stoque</translation>
    </message>
    <message id="Records.Title">
        <source>Records</source>
        <translation>Cadastros</translation>
    </message>
    <message id="Records.Unreadable">
        <source>The records cannot be read. Check the database file, then open this page again.</source>
        <translation>Não é possível ler as entradas. Verifique o arquivo do banco de dados e abra esta página de novo.</translation>
    </message>
    <message id="Records.UserGroups">
        <source>User &amp;Groups</source>
        <translation>&amp;Grupos de usuários</translation>
    </message>
    <message id="Records.Users">
        <source>&amp;Users</source>
        <translation>&amp;Usuários</translation>
    </message>
    <message id="RePassword">
        <source>Repeat password</source>
        <translation>Repetir a senha</translation>
    </message>
    <message id="Reset">
        <source>Back to the usual rate</source>
        <translation>Voltar à velocidade normal</translation>
    </message>
    <message id="Run.CouldNotStart">
        <source>%1 could not be started. Check that it is installed, then start Toolvane again.</source>
        <translation>Não foi possível iniciar %1. Verifique se está instalado e reinicie o Toolvane.</translation>
    </message>
    <message id="Run.Discard.Name">
        <source>Discard the finished archive</source>
        <translation>Descartar o arquivo zip concluído</translation>
    </message>
    <message id="Run.OtherPlace">
        <source>Another Place…</source>
        <translation>Outro lugar…</translation>
    </message>
    <message id="Run.OtherPlace.Name">
        <source>Choose another place for the finished archive</source>
        <translation>Escolher outro lugar para o arquivo zip concluído</translation>
    </message>
    <message id="Run.Stopped">
        <source>The run was stopped.</source>
        <translation>A tarefa foi interrompida.</translation>
    </message>
    <message id="Sample">
        <source>Hear a sample</source>
        <translation>Ouvir uma amostra</translation>
    </message>
    <message id="Save">
        <source>&amp;Save</source>
        <translation>Salva&amp;r</translation>
    </message>
    <message id="SaveFail">
        <source>It could not be saved. Check what you entered and where it goes, then try again.</source>
        <translation>Não foi possível salvar. Verifique os dados digitados e o local de destino e tente novamente.</translation>
    </message>
    <message id="SaveSuc">
        <source>The speech was saved. You find it in the file that you chose.</source>
        <translation>A leitura foi salva. Ela está no arquivo que você escolheu.</translation>
    </message>
    <message id="Select">
        <source>Select…</source>
        <translation>Escolher…</translation>
    </message>
    <message id="Setting">
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message id="ShowInFolder">
        <source>Show in Fol&amp;der</source>
        <translation>M&amp;ostrar na pasta</translation>
    </message>
    <message id="ShowInFolder.Name">
        <source>Show the file that was made in the file manager</source>
        <translation>Mostrar o arquivo criado no gerenciador de arquivos</translation>
    </message>
    <message id="Sidebar.Running">
        <source>Working</source>
        <translation>Em andamento</translation>
    </message>
    <message id="Sidebar.Tools">
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message id="Social">
        <source>Keep in Touch</source>
        <translation>Contato</translation>
    </message>
    <message id="Source">
        <source>&amp;Source</source>
        <translation>Ori&amp;gem</translation>
    </message>
    <message id="Source file cannot be null.">
        <source>There is no video to convert yet.</source>
        <translation>Nenhum vídeo a ser convertido foi indicado.</translation>
    </message>
    <message id="Speech Synthesis">
        <source>Speech Synthesis</source>
        <translation>Síntese de voz</translation>
    </message>
    <message id="Speech.NoProgram">
        <source>The text cannot be spoken: espeak-ng is not installed.</source>
        <translation>O texto não pode ser lido: espeak-ng não está instalado.</translation>
    </message>
    <message id="Speech.Rate.Name">
        <source>Rate in words per minute</source>
        <translation>Velocidade em palavras por minuto</translation>
    </message>
    <message id="Speech.Reset.Name">
        <source>Back to the usual rate</source>
        <translation>Voltar à velocidade normal</translation>
    </message>
    <message id="Speech.Sample.Name">
        <source>Hear a sample</source>
        <translation>Ouvir uma amostra</translation>
    </message>
    <message id="Speech.Subtitle">
        <source>Reads a text aloud, or saves the spoken text as a sound file.</source>
        <translation>Lê um texto em voz alta ou salva a leitura como arquivo de som.</translation>
    </message>
    <message id="Speech.Text.Name">
        <source>Text to read aloud</source>
        <translation>Texto a ser lido em voz alta</translation>
    </message>
    <message id="Speech.Text.Placeholder">
        <source>Type or paste the text to read aloud</source>
        <translation>Digite ou cole o texto a ser lido em voz alta</translation>
    </message>
    <message id="Speech.TooLong">
        <source>This text is too long to be spoken at once. Take it in parts.</source>
        <translation>Este texto é longo demais para ser lido de uma vez. Divida-o em partes.</translation>
    </message>
    <message id="Speech.Voice.Name">
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message id="SrcFolderNull">
        <source>There is no source yet. Choose what to work on first.</source>
        <translation>Nenhuma origem foi indicada. Primeiro, escolha com o que trabalhar.</translation>
    </message>
    <message id="Stock">
        <source>Stock</source>
        <translation>Estoque</translation>
    </message>
    <message id="Stock.Blank">
        <source>There is nothing to fill in. Save stores a blank entry.</source>
        <translation>Não há nada a preencher. “Salvar” adiciona um item em branco.</translation>
    </message>
    <message id="Stock.Column">
        <source>Entry</source>
        <translation>Item</translation>
    </message>
    <message id="Stock.Hint">
        <source>Stock entries carry nothing but their number so far.</source>
        <translation>Por enquanto, os itens do estoque contêm apenas seu número.</translation>
    </message>
    <message id="Store">
        <source>Store (no compression)</source>
        <translation>Sem compressão</translation>
    </message>
    <message id="Text">
        <source>Te&amp;xt</source>
        <translation>&amp;Texto</translation>
    </message>
    <message id="TextNullAlert">
        <source>There is no text to read yet. Type or paste one first.</source>
        <translation>Ainda não há texto para ler. Primeiro, digite ou cole um texto.</translation>
    </message>
    <message id="Toolbar.About">
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message id="Toolbar.About.Tip">
        <source>Shows the version, and what else the maker has to offer</source>
        <translation>Mostra a versão e o que mais o desenvolvedor oferece</translation>
    </message>
    <message id="Toolbar.Name">
        <source>Toolbar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message id="Toolbar.Website">
        <source>&amp;Web Site</source>
        <translation>&amp;Site</translation>
    </message>
    <message id="Toolbar.Website.Tip">
        <source>Opens the maker's web site in your browser</source>
        <translation>Abre o site do desenvolvedor no navegador</translation>
    </message>
    <message id="Total">
        <source>Total space</source>
        <translation>Espaço total</translation>
    </message>
    <message id="Trash">
        <source>Trash </source>
        <translation>Lixeira </translation>
    </message>
    <message id="Type">
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message id="Unzip">
        <source>Unzip</source>
        <translation>Descompactar</translation>
    </message>
    <message id="Unzip.Open">
        <source>Show Fol&amp;der</source>
        <translation>M&amp;ostrar a pasta</translation>
    </message>
    <message id="Unzip.Open.Name">
        <source>Show the output folder in the file manager</source>
        <translation>Mostrar a pasta de saída no gerenciador de arquivos</translation>
    </message>
    <message id="Unzip.Output.Name">
        <source>Output folder</source>
        <translation>Pasta de saída</translation>
    </message>
    <message id="Unzip.Output.Placeholder">
        <source>The folder in which the new folder is made</source>
        <translation>A pasta em que a nova pasta será criada</translation>
    </message>
    <message id="Unzip.OutputSelect.Name">
        <source>Select the output folder</source>
        <translation>Escolher a pasta de saída</translation>
    </message>
    <message id="Unzip.Source.Name">
        <source>Archive to unpack</source>
        <translation>Arquivo zip a ser descompactado</translation>
    </message>
    <message id="Unzip.Source.Placeholder">
        <source>The archive to unpack, ending in .zip</source>
        <translation>O arquivo a ser descompactado, com a extensão .zip</translation>
    </message>
    <message id="Unzip.SourceSelect.Name">
        <source>Select the archive to unpack</source>
        <translation>Escolher o arquivo zip a ser descompactado</translation>
    </message>
    <message id="Unzip.Stopped">
        <source>The run was stopped. What was unpacked is in the new folder.</source>
        <translation>A tarefa foi interrompida. O que foi descompactado está na nova pasta.</translation>
    </message>
    <message id="Unzip.Subtitle">
        <source>Unpacks a zip archive into a new folder that is named after it.</source>
        <translation>Descompacta um arquivo zip em uma nova pasta com o mesmo nome.</translation>
    </message>
    <message id="UnzipFail">
        <source>The archive could not be unpacked completely. Check that it is a complete zip archive without a password. What was unpacked so far is in the new folder.</source>
        <translation>Não foi possível descompactar o arquivo por completo. Verifique se ele é um arquivo zip completo e sem senha. O que foi descompactado até agora está na nova pasta.</translation>
    </message>
    <message id="UnzipSuc">
        <source>The archive was unpacked. The new folder is in the output folder.</source>
        <translation>O arquivo zip foi descompactado. A nova pasta está na pasta de saída.</translation>
    </message>
    <message id="Update">
        <source>Update</source>
        <translation>Atualização</translation>
    </message>
    <message id="Update.Check">
        <source>&amp;Check for Updates</source>
        <translation>&amp;Buscar atualizações</translation>
    </message>
    <message id="Update.Checking">
        <source>Asking the update server…</source>
        <translation>Consultando o servidor de atualizações…</translation>
    </message>
    <message id="Update.Download">
        <source>&amp;Download</source>
        <translation>Bai&amp;xar</translation>
    </message>
    <message id="Update.Downloaded">
        <source>Toolvane %1 is ready to be installed.</source>
        <translation>O Toolvane %1 está pronto para ser instalado.</translation>
    </message>
    <message id="Update.Downloaded.Where">
        <source>The download was checked. Its path is below.</source>
        <translation>O arquivo baixado foi verificado. O caminho está abaixo.</translation>
    </message>
    <message id="Update.Downloading">
        <source>Toolvane %1 is being downloaded.</source>
        <translation>O Toolvane %1 está sendo baixado.</translation>
    </message>
    <message id="Update.Expired">
        <source>The list of versions was valid until %1, so newer versions may be missing from it. Somebody may be holding back newer lists. Try again later, or in another network.</source>
        <translation>A lista de versões era válida até %1, por isso podem faltar versões mais recentes. Talvez alguém esteja retendo listas mais recentes. Tente novamente mais tarde ou em outra rede.</translation>
    </message>
    <message id="Update.FeedDate">
        <source>List of versions: %1.</source>
        <translation>Lista de versões: %1.</translation>
    </message>
    <message id="Update.File.Name">
        <source>Path of the downloaded file</source>
        <translation>Caminho do arquivo baixado</translation>
    </message>
    <message id="Update.Installed">
        <source>Toolvane %1 is installed.</source>
        <translation>O Toolvane %1 está instalado.</translation>
    </message>
    <message id="Update.Job">
        <source>Downloading an update</source>
        <translation>Baixando uma atualização</translation>
    </message>
    <message id="Update.LastCheck">
        <source>Last check: %1.</source>
        <translation>Última busca: %1.</translation>
    </message>
    <message id="Update.LastCheck.Result">
        <source>Last check: %1. %2</source>
        <translation>Última busca: %1. %2</translation>
    </message>
    <message id="Update.NoFeed">
        <source>No update server is set up.</source>
        <translation>Nenhum servidor de atualizações está configurado.</translation>
    </message>
    <message id="Update.NoFeed.Help">
        <source>Write the address of the maker's feed into the settings file %1, as UpdateFeed in the section [Addresses]. Then check for updates.</source>
        <translation>Escreva o endereço do feed do desenvolvedor no arquivo de configuração %1, como UpdateFeed na seção [Addresses]. Depois, busque atualizações.</translation>
    </message>
    <message id="Update.NoKey">
        <source>This copy of Toolvane was built without the maker's key. It cannot check whether versions are genuine, so it only shows what is announced and offers no download.</source>
        <translation>Esta cópia do Toolvane foi compilada sem a chave do desenvolvedor. Ela não consegue verificar se as versões são autênticas, por isso só mostra o que é anunciado e não oferece nenhum download.</translation>
    </message>
    <message id="Update.NoNotes">
        <source>No notes come with this version.</source>
        <translation>Esta versão não traz notas.</translation>
    </message>
    <message id="Update.NotDownloaded">
        <source>Toolvane %1 was not downloaded.</source>
        <translation>O Toolvane %1 não foi baixado.</translation>
    </message>
    <message id="Update.NotOpened">
        <source>Toolvane %1 was not opened.</source>
        <translation>O Toolvane %1 não foi aberto.</translation>
    </message>
    <message id="Update.Notes">
        <source>What Is New</source>
        <translation>Novidades</translation>
    </message>
    <message id="Update.Notes.Name">
        <source>Notes of the new version</source>
        <translation>Notas da nova versão</translation>
    </message>
    <message id="Update.Open">
        <source>&amp;Open Again</source>
        <translation>Abrir &amp;novamente</translation>
    </message>
    <message id="Update.Problem.BrokenOff">
        <source>The connection broke off. Check your network and try again.</source>
        <translation>A conexão foi interrompida. Verifique sua rede e tente novamente.</translation>
    </message>
    <message id="Update.Problem.Certificate">
        <source>The server could not prove who it is: its certificate is not valid. Check the clock of this computer, or try another network.</source>
        <translation>O servidor não conseguiu provar sua identidade: o certificado dele não é válido. Verifique o relógio deste computador ou tente em outra rede.</translation>
    </message>
    <message id="Update.Problem.Changed">
        <source>The file is gone, or it is not the one that was checked. Download it again.</source>
        <translation>O arquivo sumiu ou não é o que foi verificado. Baixe-o novamente.</translation>
    </message>
    <message id="Update.Problem.Garbled">
        <source>The answer makes no sense, so it may not come from the update server. Check its address, or try another network.</source>
        <translation>A resposta não faz sentido, por isso talvez não venha do servidor de atualizações. Verifique o endereço dele ou tente em outra rede.</translation>
    </message>
    <message id="Update.Problem.Incomplete">
        <source>Less arrived than the server had announced. Try again.</source>
        <translation>Chegou menos do que o servidor havia anunciado. Tente novamente.</translation>
    </message>
    <message id="Update.Problem.NoDate">
        <source>It bears no date, so it may be an old copy. Nothing of it was used.</source>
        <translation>A data está ausente, então pode ser uma cópia antiga. Nada foi usado.</translation>
    </message>
    <message id="Update.Problem.NoSignatureLibrary">
        <source>The library that checks signatures (libsodium) is not installed. Install it and try again.</source>
        <translation>A biblioteca que verifica assinaturas (libsodium) não está instalada. Instale-a e tente novamente.</translation>
    </message>
    <message id="Update.Problem.NotAFeed">
        <source>What the server sent is no list of versions. Try again later.</source>
        <translation>O que o servidor enviou não é uma lista de versões. Tente novamente mais tarde.</translation>
    </message>
    <message id="Update.Problem.NotWritten">
        <source>The file could not be saved: %1. Look whether the Downloads folder can be written and has room, then try again.</source>
        <translation>Não foi possível salvar o arquivo: %1. Verifique se é possível gravar na pasta Downloads e se há espaço nela e tente novamente.</translation>
    </message>
    <message id="Update.Problem.NothingOpens">
        <source>No program here could open the file. Use Show in Folder to get to it.</source>
        <translation>Nenhum programa conseguiu abrir o arquivo. Use “Mostrar na pasta” para chegar até ele.</translation>
    </message>
    <message id="Update.Problem.Older">
        <source>It is older than the one you got before, so somebody may have kept it back. Try again later, or in another network.</source>
        <translation>As informações são mais antigas do que as recebidas antes. Talvez alguém tenha retido as mais recentes. Tente novamente mais tarde ou em outra rede.</translation>
    </message>
    <message id="Update.Problem.Status">
        <source>The server answered with the error %1. Try again later.</source>
        <translation>O servidor respondeu com o erro %1. Tente novamente mais tarde.</translation>
    </message>
    <message id="Update.Problem.Stopped">
        <source>It was stopped.</source>
        <translation>A operação foi interrompida.</translation>
    </message>
    <message id="Update.Problem.TimedOut">
        <source>The server took too long to answer. Try again later.</source>
        <translation>O servidor demorou demais para responder. Tente novamente mais tarde.</translation>
    </message>
    <message id="Update.Problem.TooLarge">
        <source>The server sent more than it had announced or more than is allowed, so nothing was kept.</source>
        <translation>O servidor enviou mais do que havia anunciado ou do que é permitido, por isso nada foi mantido.</translation>
    </message>
    <message id="Update.Problem.Unreachable">
        <source>Nothing answered. Check your network and try again.</source>
        <translation>Não houve resposta. Verifique sua rede e tente novamente.</translation>
    </message>
    <message id="Update.Problem.UnsafeAddress">
        <source>Its address does not begin with https, or it leads to one that does not. Ask the maker for the right address.</source>
        <translation>O endereço não começa com https ou leva a outro que não começa assim. Peça o endereço correto ao desenvolvedor.</translation>
    </message>
    <message id="Update.Problem.Unsigned">
        <source>It does not bear the maker's signature, so nothing of it was used.</source>
        <translation>A assinatura do desenvolvedor está ausente, por isso nada foi usado.</translation>
    </message>
    <message id="Update.Problem.WrongSignature">
        <source>The maker's signature does not fit, so somebody else may have changed it. Nothing of it was kept.</source>
        <translation>A assinatura do desenvolvedor não confere, então outra pessoa pode ter alterado o conteúdo. Nada foi mantido.</translation>
    </message>
    <message id="Update.Progress">
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message id="Update.Result.Available">
        <source>Toolvane %1 is available.</source>
        <translation>O Toolvane %1 está disponível.</translation>
    </message>
    <message id="Update.Result.Expired">
        <source>The list of versions has expired.</source>
        <translation>A lista de versões expirou.</translation>
    </message>
    <message id="Update.Result.NotChecked">
        <source>The check for updates failed.</source>
        <translation>A busca por atualizações falhou.</translation>
    </message>
    <message id="Update.Result.NotReached">
        <source>The update server could not be reached.</source>
        <translation>Não foi possível acessar o servidor de atualizações.</translation>
    </message>
    <message id="Update.Result.NotTrusted">
        <source>The answer of the update server cannot be trusted.</source>
        <translation>A resposta do servidor de atualizações não é confiável.</translation>
    </message>
    <message id="Update.Result.Skipped">
        <source>Toolvane %1 is available, but you chose to skip it.</source>
        <translation>O Toolvane %1 está disponível, mas você escolheu ignorar esta versão.</translation>
    </message>
    <message id="Update.Result.UpToDate">
        <source>Toolvane is up to date.</source>
        <translation>O Toolvane está atualizado.</translation>
    </message>
    <message id="Update.Skip">
        <source>S&amp;kip This Version</source>
        <translation>&amp;Ignorar esta versão</translation>
    </message>
    <message id="Update.State">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="Update.Stop">
        <source>Sto&amp;p</source>
        <translation>Interrom&amp;per</translation>
    </message>
    <message id="Update.Subtitle">
        <source>Looks for a newer version of Toolvane, whenever you ask for it.</source>
        <translation>Busca uma versão mais recente do Toolvane sempre que você pedir.</translation>
    </message>
    <message id="Update.Unasked">
        <source>Check whether there is a newer version.</source>
        <translation>Verifique se há uma versão mais recente.</translation>
    </message>
    <message id="Update.Unskip">
        <source>&amp;Offer It Again</source>
        <translation>&amp;Oferecer novamente</translation>
    </message>
    <message id="User">
        <source>User</source>
        <translation>Usuário</translation>
    </message>
    <message id="User.Group.All">
        <source>All rights</source>
        <translation>Todos os direitos</translation>
    </message>
    <message id="User.Group.Gone">
        <source>A deleted group</source>
        <translation>Um grupo excluído</translation>
    </message>
    <message id="User.Group.Present">
        <source>Group now: %1</source>
        <translation>Grupo atual: %1</translation>
    </message>
    <message id="User.Group.Saved">
        <source>After saving: %1</source>
        <translation>Depois de salvar: %1</translation>
    </message>
    <message id="User.Group.Unlisted">
        <source>The group stays as it is</source>
        <translation>O grupo continua como está</translation>
    </message>
    <message id="User.Hint">
        <source>Each user logs in with a name and a password and belongs to one group.</source>
        <translation>Cada usuário entra com um nome e uma senha e pertence a um grupo.</translation>
    </message>
    <message id="UserCache">
        <source>User Cache</source>
        <translation>Espaço em disco</translation>
    </message>
    <message id="UserCache.Authorized">
        <source>Access granted</source>
        <translation>Acesso autorizado</translation>
    </message>
    <message id="UserCache.Check.Tip">
        <source>Measures the ticked folders</source>
        <translation>Mede o tamanho das pastas marcadas</translation>
    </message>
    <message id="UserCache.Clean.Tip">
        <source>Deletes the ticked folders for good, without asking again</source>
        <translation>Exclui definitivamente as pastas marcadas, sem perguntar de novo</translation>
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
        <translation>%1 liberados; o resto não: %2</translation>
    </message>
    <message id="UserCache.Gauge.Name">
        <source>Used disk space</source>
        <translation>Espaço em disco usado</translation>
    </message>
    <message id="UserCache.Gauge.NearlyFull">
        <source>Nearly full</source>
        <translation>Quase cheio</translation>
    </message>
    <message id="UserCache.Home.Name">
        <source>Granted folder</source>
        <translation>Pasta autorizada</translation>
    </message>
    <message id="UserCache.Home.Placeholder">
        <source>Your home folder, once you have granted access to it</source>
        <translation>Sua pasta pessoal, depois que você autorizar o acesso</translation>
    </message>
    <message id="UserCache.Missing">
        <source>Not there</source>
        <translation>Não existe</translation>
    </message>
    <message id="UserCache.NoAnswer">
        <source>Stopped. A folder did not answer and was left behind. Something that is mounted in it may be out of reach.</source>
        <translation>Interrompido. Uma pasta não respondeu e foi deixada de lado. Algo montado nela pode estar inacessível.</translation>
    </message>
    <message id="UserCache.NoThread">
        <source>This could not start, because the system allows no more threads. Close other programs and try again.</source>
        <translation>Não foi possível começar porque o sistema não permite mais threads. Feche outros programas e tente novamente.</translation>
    </message>
    <message id="UserCache.NotAFolder">
        <source>Not a folder</source>
        <translation>Não é uma pasta</translation>
    </message>
    <message id="UserCache.PartlyUnreadable">
        <source>Some of it cannot be read</source>
        <translation>Uma parte não pode ser lida</translation>
    </message>
    <message id="UserCache.Reason.Link">
        <source>it is reached through a link</source>
        <translation>o caminho passa por um link</translation>
    </message>
    <message id="UserCache.Reason.Mounted">
        <source>something is mounted there</source>
        <translation>há algo montado ali</translation>
    </message>
    <message id="UserCache.Reason.Permission">
        <source>no permission</source>
        <translation>sem permissão</translation>
    </message>
    <message id="UserCache.Reason.Stopped">
        <source>stopped</source>
        <translation>interrompido</translation>
    </message>
    <message id="UserCache.Stayed">
        <source>Nothing deleted: %1</source>
        <translation>Nada foi excluído: %1</translation>
    </message>
    <message id="UserCache.Subtitle">
        <source>Measures the clutter in your home folder and deletes the folders that you tick.</source>
        <translation>Mede o que ocupa espaço à toa na sua pasta pessoal e exclui as pastas que você marcar.</translation>
    </message>
    <message id="UserCache.Unauthorized">
        <source>Access not granted</source>
        <translation>Acesso não autorizado</translation>
    </message>
    <message id="UserCache.Unreadable">
        <source>Cannot be read</source>
        <translation>Não pode ser lida</translation>
    </message>
    <message id="UserExistAlert">
        <source>A user with this name already exists. Choose another name.</source>
        <translation>Já existe um usuário com este nome. Escolha outro nome.</translation>
    </message>
    <message id="UserGroup">
        <source>User Group</source>
        <translation>Grupo de usuários</translation>
    </message>
    <message id="UserGroup.BasicInfo">
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message id="UserGroup.Hint">
        <source>A group says what its users may see and change.</source>
        <translation>Um grupo define o que seus usuários podem ver e alterar.</translation>
    </message>
    <message id="UserGroup.Rights.Name">
        <source>Rights of the group</source>
        <translation>Permissões do grupo</translation>
    </message>
    <message id="UserGroupExistAlert">
        <source>A group with this name already exists. Choose another name.</source>
        <translation>Já existe um grupo com este nome. Escolha outro nome.</translation>
    </message>
    <message id="UserGroupHasUsersAlert">
        <source>The group still has users.</source>
        <translation>O grupo ainda tem usuários.</translation>
    </message>
    <message id="UserGroupHasUsersInfo">
        <source>Move its users to another group or delete them, then delete the group.</source>
        <translation>Mova os usuários para outro grupo ou exclua-os e depois exclua o grupo.</translation>
    </message>
    <message id="UserGroupNullAlert">
        <source>The group has no name yet. Enter one.</source>
        <translation>O grupo ainda não tem nome. Digite um.</translation>
    </message>
    <message id="UserGroupOverLenAlert">
        <source>The group's name is too long. Use at most 100 characters.</source>
        <translation>O nome do grupo é longo demais. Use no máximo 100 caracteres.</translation>
    </message>
    <message id="UserNullAlert">
        <source>The user has no name yet. Enter one.</source>
        <translation>O usuário ainda não tem nome. Digite um.</translation>
    </message>
    <message id="UserOverLenAlert">
        <source>The user's name is too long. Use at most 100 characters.</source>
        <translation>O nome do usuário é longo demais. Use no máximo 100 caracteres.</translation>
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
        <translation>Volum&amp;e</translation>
    </message>
    <message id="VolumeNameNull">
        <source>The volume has no name yet. Enter the name that the image is to show.</source>
        <translation>O volume ainda não tem nome. Digite o nome que a imagem deve mostrar.</translation>
    </message>
    <message id="Web">
        <source>Opens the maker's web site in your browser</source>
        <translation>Abre o site do desenvolvedor no navegador</translation>
    </message>
    <message id="Welcome.Hint">
        <source>Choose a tool on the left.</source>
        <translation>Escolha uma ferramenta à esquerda.</translation>
    </message>
    <message id="Welcome.Sentence">
        <source>Everyday file and media tools in one place.</source>
        <translation>Ferramentas do dia a dia para arquivos e mídias em um só lugar.</translation>
    </message>
    <message id="Wrong Authorized Location">
        <source>This is not your home folder.</source>
        <translation>Esta não é sua pasta pessoal.</translation>
    </message>
    <message id="Zip">
        <source>Zip</source>
        <translation>Compactar</translation>
    </message>
    <message id="Zip.Discard">
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message id="Zip.Discard.Question">
        <source>Discard the finished archive?</source>
        <translation>Descartar o arquivo zip concluído?</translation>
    </message>
    <message id="Zip.Keep">
        <source>Keep</source>
        <translation>Manter</translation>
    </message>
    <message id="Zip.NotSaved">
        <source>The archive is not saved yet.</source>
        <translation>O arquivo zip ainda não foi salvo.</translation>
    </message>
    <message id="Zip.NotSaved.NoFolder">
        <source>Not saved: the folder does not exist.</source>
        <translation>Não salvo: a pasta não existe.</translation>
    </message>
    <message id="Zip.NotSaved.NoRoom">
        <source>Not saved: there is not enough room.</source>
        <translation>Não salvo: falta espaço.</translation>
    </message>
    <message id="Zip.NotSaved.Stopped">
        <source>Stopped before it was saved.</source>
        <translation>Interrompido antes de ser salvo.</translation>
    </message>
    <message id="Zip.NotSaved.Taken">
        <source>Not saved: the name is taken.</source>
        <translation>Não salvo: o nome já existe.</translation>
    </message>
    <message id="Zip.NotSaved.Unwritable">
        <source>Not saved: nothing can be written there.</source>
        <translation>Não salvo: nada pode ser gravado lá.</translation>
    </message>
    <message id="Zip.Output.Name">
        <source>Archive to make</source>
        <translation>Arquivo zip a ser criado</translation>
    </message>
    <message id="Zip.Output.Placeholder">
        <source>The archive to make, ending in .zip</source>
        <translation>O arquivo a ser criado, com a extensão .zip</translation>
    </message>
    <message id="Zip.OutputSelect.Name">
        <source>Select the archive to make</source>
        <translation>Escolher o arquivo zip a ser criado</translation>
    </message>
    <message id="Zip.Ratio.Name">
        <source>Compression</source>
        <translation>Compressão</translation>
    </message>
    <message id="Zip.Source.Name">
        <source>Folder to pack</source>
        <translation>Pasta a ser compactada</translation>
    </message>
    <message id="Zip.Source.Placeholder">
        <source>The folder to pack</source>
        <translation>A pasta a ser compactada</translation>
    </message>
    <message id="Zip.SourceSelect.Name">
        <source>Select the folder to pack</source>
        <translation>Escolher a pasta a ser compactada</translation>
    </message>
    <message id="Zip.Subtitle">
        <source>Packs everything inside a folder into one zip archive.</source>
        <translation>Compacta todo o conteúdo de uma pasta em um único arquivo zip.</translation>
    </message>
    <message id="ZipFail">
        <source>The archive could not be made. Check that the folder exists, is not empty and can be read, and that there is room on the disk.</source>
        <translation>Não foi possível criar o arquivo zip. Verifique se a pasta existe, não está vazia e pode ser lida, e se há espaço no disco.</translation>
    </message>
    <message id="ZipFileExist">
        <source>Something with this name already exists. Choose another name for the archive.</source>
        <translation>Já existe um item com este nome. Escolha outro nome para o arquivo zip.</translation>
    </message>
    <message id="ZipFileNameNull">
        <source>The archive has no name yet. Choose where to save it.</source>
        <translation>O arquivo zip ainda não tem nome. Escolha onde salvá-lo.</translation>
    </message>
    <message id="ZipSuc">
        <source>The archive is ready.</source>
        <translation>O arquivo zip está pronto.</translation>
    </message>
</context>
</TS>
