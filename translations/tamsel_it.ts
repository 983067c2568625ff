<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>Disegna nella finestra indicata da XSCREENSAVER_WINDOW, altrimenti nella finestra radice.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>Disegna nella finestra ID come miniatura delle impostazioni.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>Mostra l’orologio in una finestra normale.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>Dimensioni della finestra o dell’immagine in punti.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>Scrive un’immagine PNG in FILE; non serve uno schermo.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>Pixel dell’immagine per punto.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>Ora locale dell’immagine, come 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>Disegna l’immagine come miniatura delle impostazioni.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>Attende e mostra l’orologio dopo [MINUTES] minuti di inattività, altrimenti dopo 4.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>Avvia questa attesa con ogni sessione, «on» o «off».</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>Aggiunge l’orologio all’elenco dei salvaschermi in ~/.xscreensaver.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>Toglie l’orologio da quell’elenco.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>Mostra le opzioni; termina con 0 dopo «OK», con 3 dopo «Annulla».</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>Mostra l’impostazione [KEY], o tutte con le loro chiavi.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>Salva un’impostazione: KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>Scrive la finestra delle opzioni come PNG in FILE; non serve uno schermo.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>Disegna la finestra delle opzioni con aspetto scuro.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>valore non valido per --%1: «%2»</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 richiede --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> o --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 e --%2 si escludono a vicenda</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argomento inatteso «%1»</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 richiede KEY e VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>un’immagine con questi --size e --scale supera %1 pixel</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>Un grande orologio da parete piatto che riempie uno schermo inattivo. Senza opzioni copre tutti gli
schermi e termina con un tasto, un pulsante o un movimento del puntatore.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>nessuno schermo: non risponde né un compositor Wayland né un server X</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>impossibile rimuovere %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>impossibile scrivere %1</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>l’attesa è già in corso in questa sessione</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>impossibile bloccare %1</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>in questa sessione nulla indica quando l’utente è inattivo</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>non esiste la finestra 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>mancano le risorse dell’orologio: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>memoria insufficiente per l’immagine</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>nessuno schermo X raggiungibile</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>non esiste l’impostazione «%1»</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>valore non valido per %1: «%2»</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>impossibile leggere %1</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver non può eseguire un programma con questo nome: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>«%1» non è LAT,LON in gradi, come 60.17,24.94 o -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set richiede un LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>troppi argomenti; vedere --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>opzione sconosciuta «%1»; vedere --help</translation>
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
        <translation>Uso: pelko-location [OPZIONE]
Sceglie il luogo di cui l’orologio segue alba e tramonto. La posizione resta su questo computer.

Senza opzioni si apre una finestra.
  --set LAT,LON  Salva una posizione in gradi, nord ed est positivi: --set 60.17,24.94
  --show         Mostra la posizione salvata e l’alba e il tramonto di oggi.
  --forget       Rimuove la posizione salvata.
  --help         Mostra questo aiuto.
  --version      Mostra la versione.

Stato di uscita: 0 successo, 1 non riuscito (una riga su stderr dice perché), 2 uso errato.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>nessuna posizione salvata</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>nessuno schermo raggiungibile; --set salva una posizione senza schermo</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>nessuno schermo: la piattaforma «%1» non ne ha</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>Posizione dell’orologio</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>Scegli il luogo di cui Tamsel Clock segue alba e tramonto</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>posizione;luogo;alba;tramonto;notte;orologio;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>La notte dell’orologio inizia e finisce con il tramonto e l’alba da te. La posizione resta su questo computer.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>Orologio da parete</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>Riempie lo schermo con un grande orologio da parete</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>orologio;ora;salvaschermo;inattivo;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>Mostra in una finestra</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>Un grande orologio da parete piatto per lo schermo inattivo</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock riempie lo schermo inattivo con un grande orologio da parete piatto. La lancetta dei minuti scatta una volta al minuto e quella dei secondi scorre.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>Quattro quadranti, uno a caso tra questi o due colori a scelta</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>Il mese accanto o sotto il quadrante</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>Una tavolozza più scura per la notte, tra due orari o dal tramonto all’alba</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>A suo agio in XScreenSaver, nei salvaschermo di MATE e Xfce, in xsecurelock e su Wayland, oppure da solo: può attendere che l’utente sia inattivo</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Opzioni di Tamsel Clock</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>Opzioni del salvaschermo</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>Scegli i colori, il calendario e la notte dell’orologio da parete</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>orologio;salvaschermo;colore;notte;calendario;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>Un grande orologio da parete piatto</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>Scegli un’altra ora di fine.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>L’inizio e la fine della modalità notturna devono essere diversi.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>Impossibile salvare le opzioni</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>Colore primario diurno, esadecimale</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>Colore primario diurno</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>Colore di sfondo diurno, esadecimale</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>Colore di sfondo diurno</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>Colore primario notturno, esadecimale</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>Colore primario notturno</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>Colore di sfondo notturno, esadecimale</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>Colore di sfondo notturno</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>Scambia i colori</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>Scambia i colori notturni</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>Scambia i colori diurni</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Colore primario</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>Calendario mensile</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Modalità notturna</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Dalle</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>La modalità notturna inizia alle</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>La modalità notturna termina alle</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>un altro programma lo sta scrivendo</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>il suo file system non ammette blocchi</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>permesso negato</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>il disco è in sola lettura</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>il disco è pieno</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>al suo posto c’è qualcos’altro</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>parte del suo contenuto andrebbe persa</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>il sistema segnala un errore</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>la cartella personale non è nota</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>Impossibile modificare %1: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>Opzioni dell’orologio…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>Impossibile avviare il programma tamsel-clock.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>Anteprima dell’orologio</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>Tonalità</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>Selettore colore</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>Anteprima dei colori diurni</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>Anteprima dei colori notturni</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>Colori dell’anteprima</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>Le ore del sole richiedono l’accesso alla posizione.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Le ore del sole usano la posizione salvata di questo computer e sono calcolate localmente.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>In attesa della posizione di questo computer…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>Posizione non disponibile. Consenti l’accesso o usa orari personalizzati.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>Impossibile salvare la posizione. Riprova o usa orari personalizzati.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Le ore del sole usano la posizione di questo computer e sono calcolate localmente.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>Posizione negata. Consenti l’accesso o usa orari personalizzati.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>Posizione non disponibile. Riprova o usa orari personalizzati.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>Tramonto</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Alba</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>Impostazione dell’inizio della modalità notturna</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>Impostazione della fine della modalità notturna</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>Oggi il sole non sorge o non tramonta in questa posizione. Scegli un orario personalizzato.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>Orario personalizzato</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>Aggiorna la posizione di questo computer…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Usa la posizione di questo computer…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>Impossibile aprire la scelta della posizione</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>Alba e tramonto richiedono la posizione di questo computer</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Consenti l’accesso alla posizione nell’applicazione Pelko Location o scegli «Orario personalizzato» nei menu «Dalle» e «Alle». La posizione resta su questo computer.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Usa la posizione di questo computer</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>Crema</translation>
    </message>
    <message>
        <source>Nero</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Casuale</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>Vicino a %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>Cerca una città o un Paese</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Città</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>Nessuna città trovata</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>Una latitudine è un numero di gradi da −90 a 90, come 60.17 o 33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>Una longitudine è un numero di gradi da −180 a 180, come 24.94 o 70.5 W.</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>L&amp;atitudine</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>L&amp;ongitudine</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>Dove sorge il tuo sole?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>L’orologio ha bisogno della tua posizione per passare ai colori notturni al tramonto e tornare indietro all’alba. La posizione resta su questo computer.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>Suggerito dal fuso orario; nulla è ancora salvato.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>Salvato. Gli orologi in esecuzione si adeguano subito.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>Dimenticato. Un orologio in esecuzione mantiene le ore del sole finché non termina.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>Un altro programma ha dimenticato la posizione salvata.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>Un altro programma ha salvato questo luogo.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>Un altro programma ha salvato un altro luogo.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>Trovata, ma non ancora salvata.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>Salvare questo luogo?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>Il luogo scelto non è ancora salvato.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>Scegli un luogo per vederne l’alba e il tramonto.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>Oggi lì il sole non sorge o non tramonta, quindi non può iniziare o terminare una notte.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>Oggi: alba %1, tramonto %2 secondo l’orologio di questo computer</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>Oggi: alba %1, tramonto %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Nessun luogo scelto</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Luogo scelto</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>Dimentica la &amp;posizione</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>&amp;Trova la mia posizione</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>Ricerca della posizione</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>Il desktop ora non fornisce posizioni ai programmi. Attiva il suo servizio di localizzazione e riprova, oppure scegli una città.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>Ricerca della posizione… Puoi anche scegliere una città.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>L’accesso alla posizione è stato rifiutato. Consentilo e riprova, oppure scegli una città.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>Nessun servizio di localizzazione ha risposto. Riprova o scegli una città.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>In&amp;terrompi la ricerca</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>Richiesta del consenso… Puoi anche scegliere una città.</translation>
    </message>
</context>
</TS>
