<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>Desenhar na janela indicada por XSCREENSAVER_WINDOW ou, se não houver, na janela raiz.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>Desenhar na janela ID como miniatura das configurações.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>Mostrar o relógio em uma janela comum.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>Tamanho da janela ou da imagem, em pontos.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>Gravar uma imagem PNG em FILE; não precisa de tela.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>Pixels da imagem por ponto.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>Hora local da imagem, como 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>Desenhar a imagem como miniatura das configurações.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>Esperar e mostrar o relógio após [MINUTES] minutos de inatividade ou, sem isso, após 4.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>Iniciar essa espera a cada sessão, “on” ou “off”.</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>Incluir o relógio na lista de protetores de tela em ~/.xscreensaver.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>Retirar o relógio dessa lista.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>Mostrar as opções; termina com 0 após “OK” e com 3 após “Cancelar”.</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>Mostrar a configuração [KEY], ou todas com suas chaves.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>Salvar uma configuração: KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>Gravar a janela de opções como PNG em FILE; não precisa de tela.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>Desenhar a janela de opções com aparência escura.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>valor inválido para --%1: “%2”</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 precisa de --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> ou --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 e --%2 excluem um ao outro</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado “%1”</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 precisa de KEY e VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>uma imagem com esse --size e esse --scale passa de %1 pixels</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>Um grande relógio de parede, sem relevo, que preenche uma tela ociosa. Sem opções, cobre todas as
telas e termina ao pressionar uma tecla ou um botão ou mover o ponteiro.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>sem tela: nem um compositor Wayland nem um servidor X responde</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>não é possível remover %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>não é possível gravar %1</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>a espera já está em andamento nesta sessão</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>não é possível bloquear %1</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>nada nesta sessão informa quando o usuário está ocioso</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>não existe a janela 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>faltam os recursos do relógio: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>memória insuficiente para a imagem</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>nenhuma tela X pode ser acessada</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>não existe a configuração “%1”</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>valor inválido para %1: “%2”</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>não é possível ler %1</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>o XScreenSaver não pode executar um programa com esse nome: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>“%1” não é LAT,LON em graus, como 60.17,24.94 ou -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set precisa de um LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>argumentos demais; veja --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>opção desconhecida “%1”; veja --help</translation>
    </message>
    <message>
        <source>Usage: pelko-location [OPTION]
Chooses the place whose sunrise and sunset the clock follows. The location stays on this computer.

Without an option a window opens.
  --set LAT,LON  Save a location in degrees, north and east positive: --set 60.17,24.94
  --show         Print the saved location and today&apos;s sunrise and sunset.
  --forget       Remove the saved location.
  --help         Print this help.
  --version      Print the version.

Exit status: 0 success, 1 could not do it (one line on stderr says why), 2 wrong usage.
</source>
        <translation>Uso: pelko-location [OPÇÃO]
Escolhe o lugar cujo nascer e pôr do sol o relógio segue. A localização fica neste computador.

Sem opções, abre-se uma janela.
  --set LAT,LON  Salvar uma localização em graus, norte e leste positivos: --set 60.17,24.94
  --show         Mostrar a localização salva e o nascer e o pôr do sol de hoje.
  --forget       Remover a localização salva.
  --help         Mostrar esta ajuda.
  --version      Mostrar a versão.

Status de saída: 0 sucesso, 1 não foi possível (uma linha em stderr diz por quê), 2 uso incorreto.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>nenhuma localização está salva</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>nenhuma tela pode ser acessada; --set salva uma localização sem tela</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>sem tela: a plataforma “%1” não tem nenhuma</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>Localização do relógio</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>Escolha o lugar cujo nascer e pôr do sol o Tamsel Clock segue</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>localização;lugar;nascer;pôr;sol;noite;relógio;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>A noite do relógio começa e termina com o pôr e o nascer do sol onde você está. A localização fica neste computador.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>Relógio de parede</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>Preencha a tela com um grande relógio de parede</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>relógio;hora;protetor de tela;ocioso;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>Mostrar em uma janela</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>Um grande relógio de parede, sem relevo, para uma tela ociosa</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>O Tamsel Clock preenche uma tela ociosa com um grande relógio de parede, sem relevo. O ponteiro dos minutos salta uma vez por minuto e o dos segundos desliza.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>Quatro mostradores, um deles ao acaso ou duas cores à sua escolha</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>O mês ao lado ou abaixo do mostrador</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>Uma paleta mais escura para a noite, entre dois horários ou do pôr ao nascer do sol</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>À vontade no XScreenSaver, nos protetores de tela do MATE e do Xfce, no xsecurelock e no Wayland, ou sozinho: ele pode esperar até que você fique ocioso</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Opções do Tamsel Clock</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>Opções do protetor de tela</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>Escolha as cores, o calendário e a noite do relógio de parede</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>relógio;protetor de tela;cor;noite;calendário;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>Um grande relógio de parede, sem relevo</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>Escolha outro horário de término.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>O início e o fim do modo noturno devem ser diferentes.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>Não foi possível salvar as opções</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>Cor primária do dia, hexadecimal</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>Cor primária do dia</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>Cor de fundo do dia, hexadecimal</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>Cor de fundo do dia</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>Cor primária da noite, hexadecimal</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>Cor primária da noite</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>Cor de fundo da noite, hexadecimal</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>Cor de fundo da noite</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>Trocar as cores</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>Trocar as cores da noite</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>Trocar as cores do dia</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Cor primária</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Plano de fundo</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>Calendário mensal</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Modo noturno</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>O modo noturno começa às</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>O modo noturno termina às</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>outro programa está gravando nele</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>o sistema de arquivos não aceita bloqueios</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>você não tem permissão</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>o disco é somente leitura</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>o disco está cheio</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>há outra coisa no lugar dele</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>parte do conteúdo seria perdida</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>o sistema informa um erro</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>a pasta pessoal não é conhecida</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>Não é possível alterar %1: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>Opções do relógio…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>Não é possível iniciar o programa tamsel-clock.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>Pré-visualização do relógio</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>Seletor de cores</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>Ver as cores do dia</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>Ver as cores da noite</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>Cores da pré-visualização</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>Os horários do sol precisam de permissão de localização.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Os horários do sol usam a localização salva deste computador e são calculados localmente.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>Aguardando a localização deste computador…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>Localização indisponível. Permita o acesso ou use horários personalizados.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>Não foi possível salvar a localização. Tente de novo ou use horários personalizados.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Os horários do sol usam a localização deste computador e são calculados localmente.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>Localização negada. Permita o acesso ou use horários personalizados.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>Localização indisponível. Tente de novo ou use horários personalizados.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>Pôr do sol</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Nascer do sol</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>Configuração do início do modo noturno</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>Configuração do fim do modo noturno</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>Hoje o sol não nasce ou não se põe neste local. Escolha um horário personalizado.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>Horário personalizado</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>Atualizar a localização deste computador…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Usar a localização deste computador…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>Não foi possível abrir a configuração da localização</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>O nascer e o pôr do sol precisam da localização deste computador</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Permita o acesso à localização no aplicativo Pelko Location ou escolha “Horário personalizado” nos menus “De” e “Até”. A localização fica neste computador.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Usar a localização deste computador</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>Laranja</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>Creme</translation>
    </message>
    <message>
        <source>Nero</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aleatório</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>Perto de %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>Pesquisar uma cidade ou um país</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Cidades</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>Nenhuma cidade encontrada</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>Uma latitude é um número de graus de −90 a 90, como 60.17 ou 33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>Uma longitude é um número de graus de −180 a 180, como 24.94 ou 70.5 W.</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>L&amp;atitude</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>L&amp;ongitude</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>Onde nasce o seu sol?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>O relógio precisa da sua localização para mudar para as cores da noite ao pôr do sol e voltar ao nascer do sol. Ela fica neste computador.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>Sugerido pelo seu fuso horário; nada foi salvo ainda.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>Salvo. Os relógios em execução se adaptam na hora.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>Esquecido. Um relógio em execução mantém os horários do sol até terminar.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>Outro programa esqueceu a localização salva.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>Outro programa salvou este lugar.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>Outro programa salvou outro lugar.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>Encontrada, mas ainda não salva.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>Salvar este lugar?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>O lugar escolhido ainda não foi salvo.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Não salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>Escolha um lugar para ver o nascer e o pôr do sol.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>Hoje o sol não nasce ou não se põe lá, então não pode começar nem terminar uma noite.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>Hoje: nascer do sol %1, pôr do sol %2 pelo relógio deste computador</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>Hoje: nascer do sol %1, pôr do sol %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Nenhum lugar escolhido</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Lugar escolhido</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>Esquece&amp;r localização</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>&amp;Encontrar minha localização</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>Procurando sua localização</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>A área de trabalho não fornece localizações aos programas agora. Ative o serviço de localização dela e tente de novo, ou escolha uma cidade.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>Procurando sua localização… Você também pode escolher uma cidade.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>O acesso à sua localização foi recusado. Permita o acesso e tente de novo, ou escolha uma cidade.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>Nenhum serviço de localização respondeu. Tente de novo ou escolha uma cidade.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>Int&amp;erromper a busca</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>Pedindo o seu consentimento… Você também pode escolher uma cidade.</translation>
    </message>
</context>
</TS>
