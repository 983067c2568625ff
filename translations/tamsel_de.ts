<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>In das Fenster zeichnen, das XSCREENSAVER_WINDOW nennt, sonst in das Wurzelfenster.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>Als Vorschaubild der Einstellungen in das Fenster ID zeichnen.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>Die Uhr in einem gewöhnlichen Fenster zeigen.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>Größe des Fensters oder Bildes in Punkten.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>Ein einzelnes Bild als PNG in FILE schreiben; braucht keine Anzeige.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>Gerätepixel des Bildes pro Punkt.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>Ortszeit des Bildes, etwa 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>Das Bild als Vorschaubild der Einstellungen zeichnen.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>Warten und die Uhr zeigen, wenn der Benutzer [MINUTES] Minuten untätig ist, sonst nach 4.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>Dieses Warten mit jeder Sitzung beginnen, »on« oder »off«.</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>Die Uhr in die Liste der Bildschirmschoner in ~/.xscreensaver eintragen.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>Die Uhr aus dieser Liste entfernen.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>Die Einstellungen zeigen; endet nach »OK« mit 0, nach »Abbrechen« mit 3.</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>Die Einstellung [KEY] ausgeben oder alle mit ihren Schlüsseln.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>Eine Einstellung speichern: KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>Das Einstellungsfenster als PNG in FILE schreiben; braucht keine Anzeige.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>Das Einstellungsfenster im dunklen Erscheinungsbild zeichnen.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>ungültiger Wert für --%1: »%2«</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 benötigt --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> oder --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 und --%2 schließen einander aus</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>unerwartetes Argument »%1«</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 benötigt KEY und VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>ein Bild mit diesem --size und --scale ist größer als %1 Pixel</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>Eine große, flache Wanduhr, die einen unbenutzten Bildschirm füllt. Ohne Option bedeckt sie alle
Bildschirme und endet mit einem Tastendruck, einem Mausklick oder einer Zeigerbewegung.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>keine Anzeige: Weder ein Wayland-Compositor noch ein X-Server antwortet</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>%1 kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>in dieser Sitzung wird bereits gewartet</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>%1 kann nicht gesperrt werden</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>nichts in dieser Sitzung meldet, wann der Benutzer untätig ist</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>es gibt kein Fenster 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>die Ressourcen der Uhr fehlen: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>nicht genug Speicher für das Bild</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>keine X-Anzeige ist erreichbar</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>es gibt keine Einstellung »%1«</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>ungültiger Wert für %1: »%2«</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver kann kein Programm dieses Namens ausführen: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>»%1« ist kein LAT,LON in Grad, wie etwa 60.17,24.94 oder -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set erwartet ein LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>zu viele Argumente; siehe --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>unbekannte Option »%1«; siehe --help</translation>
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
        <translation>Aufruf: pelko-location [OPTION]
Wählt den Ort, nach dessen Sonnenauf- und -untergang sich die Uhr richtet. Der Standort bleibt auf diesem Computer.

Ohne Option öffnet sich ein Fenster.
  --set LAT,LON  Einen Standort in Grad speichern, Nord und Ost positiv: --set 60.17,24.94
  --show         Den gespeicherten Standort und den heutigen Sonnenauf- und -untergang ausgeben.
  --forget       Den gespeicherten Standort entfernen.
  --help         Diese Hilfe ausgeben.
  --version      Die Version ausgeben.

Endestatus: 0 Erfolg, 1 nicht möglich (eine Zeile auf stderr nennt den Grund), 2 falscher Aufruf.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>es ist kein Standort gespeichert</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>keine Anzeige ist erreichbar; --set speichert einen Standort ohne Anzeige</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>keine Anzeige: Die Plattform »%1« hat keinen Bildschirm</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>Standort der Uhr</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>Den Ort wählen, nach dessen Sonnenauf- und -untergang sich Tamsel Clock richtet</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>Standort;Ort;Sonnenaufgang;Sonnenuntergang;Nacht;Uhr;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>Die Nacht der Uhr beginnt und endet mit Ihrem Sonnenunter- und -aufgang. Der Standort bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>Wanduhr</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>Den Bildschirm mit einer großen Wanduhr füllen</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>Uhr;Zeit;Bildschirmschoner;untätig;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>In einem Fenster zeigen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>Eine große, flache Wanduhr für den unbenutzten Bildschirm</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock füllt einen unbenutzten Bildschirm mit einer großen, flachen Wanduhr. Der Minutenzeiger springt einmal in der Minute, und der Sekundenzeiger gleitet.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>Vier Zifferblätter, ein zufälliges davon oder zwei eigene Farben</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>Der Monat neben oder unter dem Zifferblatt</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>Eine dunklere Palette für die Nacht, zwischen zwei Uhrzeiten oder von Sonnenuntergang bis Sonnenaufgang</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>Zu Hause in XScreenSaver, in den Bildschirmschonern von MATE und Xfce, in xsecurelock und unter Wayland, oder allein: Die Uhr kann warten, bis Sie untätig sind</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Tamsel Clock – Einstellungen</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>Einstellungen des Bildschirmschoners</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>Farben, Kalender und Nacht der Wanduhr wählen</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>Uhr;Bildschirmschoner;Farbe;Nacht;Kalender;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>Eine große, flache Wanduhr</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>Wählen Sie eine andere Endzeit.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>Beginn und Ende des Nachtmodus müssen verschieden sein.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>Primärfarbe am Tag, hexadezimal</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>Primärfarbe am Tag</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>Hintergrundfarbe am Tag, hexadezimal</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>Hintergrundfarbe am Tag</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>Primärfarbe bei Nacht, hexadezimal</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>Primärfarbe bei Nacht</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>Hintergrundfarbe bei Nacht, hexadezimal</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>Hintergrundfarbe bei Nacht</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>Nachtfarben tauschen</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>Tagfarben tauschen</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primärfarbe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>Monatskalender</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Nachtmodus</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>Nachtmodus beginnt um</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>Nachtmodus endet um</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>ein anderes Programm schreibt sie gerade</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>ihr Dateisystem lässt keine Sperren zu</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>Ihnen fehlt die Berechtigung</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>an ihrer Stelle steht etwas anderes</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>ein Teil ihres Inhalts ginge verloren</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>das System meldet einen Fehler</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>der persönliche Ordner ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>Die Datei %1 kann nicht geändert werden: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>Einstellungen der Uhr …</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>Das Programm tamsel-clock lässt sich nicht starten.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>Uhrvorschau</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>Farbauswahl</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>Vorschau der Tagfarben</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>Vorschau der Nachtfarben</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>Farben der Vorschau</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>Sonnenzeiten benötigen die Erlaubnis, den Standort zu verwenden.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Die Sonnenzeiten gelten für den gespeicherten Standort dieses Computers und werden hier berechnet.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>Warten auf den Standort dieses Computers …</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>Standort nicht verfügbar. Erlauben Sie den Zugriff oder verwenden Sie eigene Uhrzeiten.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>Der Standort konnte nicht gespeichert werden. Versuchen Sie es erneut oder verwenden Sie eigene Uhrzeiten.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Die Sonnenzeiten gelten für den Standort dieses Computers und werden hier berechnet.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>Standort verweigert. Erlauben Sie den Zugriff oder verwenden Sie eigene Uhrzeiten.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>Standort nicht verfügbar. Versuchen Sie es erneut oder verwenden Sie eigene Uhrzeiten.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Sonnenaufgang</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>Einstellung für den Beginn des Nachtmodus</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>Einstellung für das Ende des Nachtmodus</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>An diesem Standort geht die Sonne heute nicht auf oder unter. Wählen Sie eine eigene Uhrzeit.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>Eigene Uhrzeit</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>Standort dieses Computers aktualisieren …</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Standort dieses Computers verwenden …</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>Die Standortauswahl konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>Sonnenauf- und -untergang benötigen den Standort dieses Computers</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Erlauben Sie den Standortzugriff im Programm Pelko Location oder wählen Sie in den Menüs »Von« und »Bis« »Eigene Uhrzeit«. Der Standort bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Standort dieses Computers verwenden</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
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
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene Farben</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>Nahe %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>Nach einer Stadt oder einem Land suchen</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Städte</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>Keine Stadt gefunden</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>Eine geografische Breite ist eine Gradzahl von −90 bis 90, etwa 60.17 oder 33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>Eine geografische Länge ist eine Gradzahl von −180 bis 180, etwa 24.94 oder 70.5 W.</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>&amp;Breitengrad</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>&amp;Längengrad</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>Wo geht Ihre Sonne auf?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>Die Uhr benötigt Ihren Standort, um bei Sonnenuntergang zu ihren Nachtfarben zu wechseln und bei Sonnenaufgang zurück. Er bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>Von Ihrer Zeitzone vorgeschlagen; noch ist nichts gespeichert.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>Gespeichert. Laufende Uhren richten sich sofort danach.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>Vergessen. Eine laufende Uhr behält ihre Sonnenzeiten, bis sie endet.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>Ein anderes Programm hat den gespeicherten Standort vergessen.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>Ein anderes Programm hat diesen Ort gespeichert.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>Ein anderes Programm hat einen anderen Ort gespeichert.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>Gefunden, aber noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>Diesen Ort speichern?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>Der gewählte Ort ist noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>Wählen Sie einen Ort, um zu sehen, wann die Sonne dort auf- und untergeht.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>Die Sonne geht dort heute nicht auf oder unter und kann daher keine Nacht beginnen oder beenden.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>Heute: Sonnenaufgang %1, Sonnenuntergang %2 nach der Uhr dieses Computers</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>Heute: Sonnenaufgang %1, Sonnenuntergang %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Kein Ort gewählt</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Gewählter Ort</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>Standort ve&amp;rgessen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>&amp;Meinen Standort ermitteln</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>Ihr Standort wird ermittelt</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>Die Arbeitsumgebung gibt Programmen zurzeit keine Standorte. Schalten Sie ihren Standortdienst ein und versuchen Sie es erneut, oder wählen Sie eine Stadt.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>Ihr Standort wird ermittelt … Sie können stattdessen eine Stadt wählen.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>Der Zugriff auf Ihren Standort wurde verweigert. Erlauben Sie ihn und versuchen Sie es erneut, oder wählen Sie eine Stadt.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>Kein Standortdienst hat geantwortet. Versuchen Sie es erneut oder wählen Sie eine Stadt.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>Er&amp;mittlung abbrechen</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>Sie werden um Ihre Zustimmung gebeten … Sie können stattdessen eine Stadt wählen.</translation>
    </message>
</context>
</TS>
