<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>Dibujar en la ventana que indica XSCREENSAVER_WINDOW o, si no, en la ventana raíz.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>Dibujar en la ventana ID como miniatura de los ajustes.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>Mostrar el reloj en una ventana normal.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>Tamaño de la ventana o de la imagen, en puntos.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>Escribir una imagen PNG en FILE; no necesita pantalla.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>Píxeles de la imagen por punto.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>Hora local de la imagen, como 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>Dibujar la imagen como miniatura de los ajustes.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>Esperar y mostrar el reloj tras [MINUTES] minutos de inactividad o, si no, tras 4.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>Iniciar esa espera con cada sesión, «on» u «off».</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>Añadir el reloj a la lista de salvapantallas de ~/.xscreensaver.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>Quitar el reloj de esa lista.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>Mostrar las opciones; termina con 0 tras «Aceptar» y con 3 tras «Cancelar».</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>Mostrar el ajuste [KEY], o todos con sus claves.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>Guardar un ajuste: KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>Escribir la ventana de opciones como PNG en FILE; no necesita pantalla.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>Dibujar la ventana de opciones con apariencia oscura.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>valor incorrecto para --%1: «%2»</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 necesita --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> o --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 y --%2 se excluyen</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 necesita KEY y VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>una imagen con ese --size y ese --scale supera los %1 píxeles</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>Un gran reloj de pared plano que llena una pantalla inactiva. Sin opciones cubre todas las
pantallas y termina al pulsar una tecla o un botón o al mover el puntero.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>no hay pantalla: no responde ningún compositor Wayland ni servidor X</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>no se puede eliminar %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>ya se está esperando en esta sesión</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>no se puede bloquear %1</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>nada en esta sesión indica cuándo está inactivo el usuario</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>no existe la ventana 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>faltan los recursos del reloj: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>no hay memoria suficiente para la imagen</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>no se puede acceder a ninguna pantalla X</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>no existe el ajuste «%1»</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>valor incorrecto para %1: «%2»</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>no se puede leer %1</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver no puede ejecutar un programa con ese nombre: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>«%1» no es LAT,LON en grados, como 60.17,24.94 o -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set necesita un LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>demasiados argumentos; véase --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>opción desconocida «%1»; véase --help</translation>
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
        <translation>Uso: pelko-location [OPCIÓN]
Elige el lugar cuya salida y puesta de sol sigue el reloj. La ubicación no sale de este equipo.

Sin opciones se abre una ventana.
  --set LAT,LON  Guardar una ubicación en grados, norte y este positivos: --set 60.17,24.94
  --show         Mostrar la ubicación guardada y la salida y puesta de sol de hoy.
  --forget       Eliminar la ubicación guardada.
  --help         Mostrar esta ayuda.
  --version      Mostrar la versión.

Estado de salida: 0 correcto, 1 no se pudo hacer (una línea en stderr dice por qué), 2 uso incorrecto.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>no hay ninguna ubicación guardada</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>no se puede acceder a ninguna pantalla; --set guarda una ubicación sin ella</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>no hay pantalla: la plataforma «%1» no tiene ninguna</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>Ubicación del reloj</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>Elija el lugar cuya salida y puesta de sol sigue Tamsel Clock</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>ubicación;lugar;amanecer;atardecer;noche;reloj;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>La noche del reloj empieza y termina con la puesta y la salida del sol en su ubicación. La ubicación permanece en este equipo.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>Reloj de pared</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>Llene la pantalla con un gran reloj de pared</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>reloj;hora;salvapantallas;inactivo;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>Mostrar en una ventana</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>Un gran reloj de pared plano para una pantalla inactiva</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock llena una pantalla inactiva con un gran reloj de pared plano. El minutero salta una vez por minuto y el segundero se desliza.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>Cuatro esferas, una de ellas al azar o dos colores propios</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>El mes junto a la esfera o debajo de ella</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>Una paleta más oscura para la noche, entre dos horas del día o desde la puesta hasta la salida del sol</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>Se integra en XScreenSaver, en los salvapantallas de MATE y Xfce, en xsecurelock y en Wayland, o funciona solo: puede esperar hasta que usted esté inactivo</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Opciones de Tamsel Clock</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>Opciones del salvapantallas</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>Elija los colores, el calendario y la noche del reloj de pared</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>reloj;salvapantallas;color;noche;calendario;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>Un gran reloj de pared plano</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>Elija otra hora de fin.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>El inicio y el fin del modo nocturno deben ser distintos.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>No se pudieron guardar las opciones</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>Color primario de día, hexadecimal</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>Color primario de día</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>Color de fondo de día, hexadecimal</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>Color de fondo de día</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>Color primario de noche, hexadecimal</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>Color primario de noche</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>Color de fondo de noche, hexadecimal</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>Color de fondo de noche</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>Intercambiar colores</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>Intercambiar los colores de noche</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>Intercambiar los colores de día</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Color primario</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>Calendario mensual</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Modo nocturno</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>El modo nocturno empieza a las</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>El modo nocturno termina a las</translation>
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
        <translation>otro programa lo está escribiendo</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>su sistema de archivos no admite bloqueos</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>usted no tiene permiso</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>hay otra cosa en su lugar</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>se perdería parte de su contenido</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>el sistema informa de un error</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>no se conoce la carpeta personal</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>No se puede modificar %1: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>Opciones del reloj…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>No se puede iniciar el programa tamsel-clock.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>Vista previa del reloj</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>Selector de color</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>Vista previa de los colores de día</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>Vista previa de los colores de noche</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>Colores de la vista previa</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>Las horas del sol necesitan permiso de ubicación.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Las horas del sol usan la ubicación guardada de este equipo y se calculan localmente.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>Esperando la ubicación de este equipo…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>Ubicación no disponible. Permita el acceso o use horas personalizadas.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>No se pudo guardar la ubicación. Inténtelo de nuevo o use horas personalizadas.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Las horas del sol usan la ubicación de este equipo y se calculan localmente.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>Ubicación denegada. Permita el acceso o use horas personalizadas.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>Ubicación no disponible. Inténtelo de nuevo o use horas personalizadas.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>Puesta de sol</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Salida del sol</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>Ajuste del inicio del modo nocturno</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>Ajuste del fin del modo nocturno</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>Hoy el sol no sale o no se pone en esta ubicación. Elija una hora personalizada.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>Hora personalizada</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>Actualizar la ubicación de este equipo…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Usar la ubicación de este equipo…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>No se pudo abrir la configuración de la ubicación</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>La salida y la puesta de sol necesitan la ubicación de este equipo</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Permita el acceso a la ubicación en la aplicación Pelko Location o elija «Hora personalizada» en los menús «Desde» y «Hasta». La ubicación no sale de este equipo.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Usar la ubicación de este equipo</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
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
        <translation>Aleatorio</translation>
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
        <translation>Cerca de %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>Buscar una ciudad o un país</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Ciudades</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>No se encontró ninguna ciudad</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>Una latitud es un número de grados de −90 a 90, como 60.17 o 33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>Una longitud es un número de grados de −180 a 180, como 24.94 o 70.5 W.</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>L&amp;atitud</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>L&amp;ongitud</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>¿Dónde sale su sol?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>El reloj necesita su ubicación para cambiar a sus colores de noche con la puesta de sol y volver con la salida. La ubicación no sale de este equipo.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>Sugerido por su zona horaria; aún no hay nada guardado.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>Guardado. Los relojes en marcha se adaptan al momento.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>Olvidado. Un reloj en marcha conserva sus horas del sol hasta que termina.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>Otro programa olvidó la ubicación guardada.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>Otro programa guardó este lugar.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>Otro programa guardó otro lugar.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>Encontrada, pero aún no guardada.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>¿Guardar este lugar?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>El lugar elegido aún no está guardado.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>No guardar</translation>
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
        <translation>Elija un lugar para ver su salida y puesta de sol.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>Hoy el sol no sale o no se pone allí, así que no puede empezar ni terminar una noche.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>Hoy: salida del sol %1, puesta %2 según el reloj de este equipo</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>Hoy: salida del sol %1, puesta %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Ningún lugar elegido</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Lugar elegido</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>Olvida&amp;r la ubicación</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>&amp;Buscar mi ubicación</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>Buscando su ubicación</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>El escritorio no da ubicaciones a los programas ahora. Active su servicio de ubicación e inténtelo de nuevo, o elija una ciudad.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>Buscando su ubicación… También puede elegir una ciudad.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>Se denegó el acceso a su ubicación. Permítalo e inténtelo de nuevo, o elija una ciudad.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>Ningún servicio de ubicación respondió. Inténtelo de nuevo o elija una ciudad.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>Detener la &amp;búsqueda</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>Pidiendo su consentimiento… También puede elegir una ciudad.</translation>
    </message>
</context>
</TS>
