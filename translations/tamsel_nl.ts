<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>In het venster tekenen dat XSCREENSAVER_WINDOW noemt, anders in het hoofdvenster.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>In het venster ID tekenen als voorbeeld van de instellingen.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>De klok in een gewoon venster tonen.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>Afmetingen van het venster of de afbeelding in punten.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>Eén afbeelding als PNG naar FILE schrijven; heeft geen scherm nodig.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>Beeldpunten van de afbeelding per punt.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>Lokale tijd van de afbeelding, zoals 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>De afbeelding als voorbeeld van de instellingen tekenen.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>Wachten en de klok tonen na [MINUTES] minuten zonder activiteit, anders na 4.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>Dit wachten met elke sessie starten, ‘on’ of ‘off’.</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>De klok opnemen in de lijst van schermbeveiligingen in ~/.xscreensaver.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>De klok uit die lijst halen.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>De opties tonen; eindigt met 0 na ‘OK’, met 3 na ‘Annuleren’.</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>De instelling [KEY] tonen, of alle met hun sleutels.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>Een instelling opslaan: KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>Het optievenster als PNG naar FILE schrijven; heeft geen scherm nodig.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>Het optievenster in donker uiterlijk tekenen.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Deze hulp tonen.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>De versie tonen.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>ongeldige waarde voor --%1: ‘%2’</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 vereist --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> of --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 en --%2 sluiten elkaar uit</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>onverwacht argument ‘%1’</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 vereist KEY en VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>een afbeelding met die --size en --scale is groter dan %1 beeldpunten</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>Eén grote, vlakke wandklok die een ongebruikt scherm vult. Zonder optie bedekt hij elk scherm
en stopt hij bij een toets, een knop of een beweging van de muis.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>geen scherm: er antwoordt geen Wayland-compositor en geen X-server</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>%1 kan niet worden verwijderd</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 kan niet worden geschreven</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>in deze sessie wordt al gewacht</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>%1 kan niet worden vergrendeld</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>niets in deze sessie meldt wanneer de gebruiker inactief is</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>er is geen venster 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>de bronbestanden van de klok ontbreken: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>niet genoeg geheugen voor de afbeelding</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>er is geen X-scherm bereikbaar</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>er is geen instelling ‘%1’</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>ongeldige waarde voor %1: ‘%2’</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>%1 kan niet worden gelezen</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver kan geen programma met die naam starten: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>‘%1’ is geen LAT,LON in graden, zoals 60.17,24.94 of -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set vereist één LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>te veel argumenten; zie --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>onbekende optie ‘%1’; zie --help</translation>
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
        <translation>Gebruik: pelko-location [OPTIE]
Kiest de plaats waarvan de klok zonsopkomst en zonsondergang volgt. De locatie blijft op deze computer.

Zonder optie opent een venster.
  --set LAT,LON  Een locatie opslaan in graden, noord en oost positief: --set 60.17,24.94
  --show         De opgeslagen locatie tonen en de zonsopkomst en zonsondergang van vandaag.
  --forget       De opgeslagen locatie verwijderen.
  --help         Deze hulp tonen.
  --version      De versie tonen.

Afsluitstatus: 0 gelukt, 1 niet gelukt (een regel op stderr zegt waarom), 2 verkeerd gebruik.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>er is geen locatie opgeslagen</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>er is geen scherm bereikbaar; --set slaat een locatie zonder scherm op</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>geen scherm: het platform ‘%1’ heeft er geen</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>Locatie van de klok</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>De plaats kiezen waarvan Tamsel Clock zonsopkomst en zonsondergang volgt</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>locatie;plaats;zonsopkomst;zonsondergang;nacht;klok;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>De nacht van de klok begint en eindigt met zonsondergang en zonsopkomst bij u. De locatie blijft op deze computer.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>Wandklok</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>Het scherm vullen met één grote wandklok</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>klok;tijd;schermbeveiliging;inactief;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>In een venster tonen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>Eén grote, vlakke wandklok voor een ongebruikt scherm</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock vult een ongebruikt scherm met één grote, vlakke wandklok. De minutenwijzer verspringt elke minuut en de secondewijzer glijdt.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>Vier wijzerplaten, een willekeurige daarvan of twee eigen kleuren</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>De maand naast of onder de wijzerplaat</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>Een donkerder palet voor de nacht, tussen twee tijdstippen of van zonsondergang tot zonsopkomst</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>Thuis in XScreenSaver, in de schermbeveiligingen van MATE en Xfce, in xsecurelock en op Wayland, of alleen: de klok kan wachten tot u inactief bent</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Opties van Tamsel Clock</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>Opties van de schermbeveiliging</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>De kleuren, kalender en nacht van de wandklok kiezen</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>klok;schermbeveiliging;kleur;nacht;kalender;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>Eén grote, vlakke wandklok</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>Kleuren</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>Kies een andere eindtijd.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>Begin en einde van de nachtmodus moeten verschillen.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>De opties konden niet worden opgeslagen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>Primaire kleur overdag, hexadecimaal</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>Primaire kleur overdag</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>Achtergrondkleur overdag, hexadecimaal</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>Achtergrondkleur overdag</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>Primaire kleur ’s nachts, hexadecimaal</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>Primaire kleur ’s nachts</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>Achtergrondkleur ’s nachts, hexadecimaal</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>Achtergrondkleur ’s nachts</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>Kleuren omwisselen</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>Nachtkleuren omwisselen</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>Dagkleuren omwisselen</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primaire kleur</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>Maandkalender</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Nachtmodus</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>Nachtmodus begint om</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>Nachtmodus eindigt om</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>een ander programma schrijft het</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>het bestandssysteem weigert vergrendelingen</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>u hebt geen toestemming</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>de schijf is alleen-lezen</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>de schijf is vol</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>er staat iets anders op die plek</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>een deel van de inhoud zou verloren gaan</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>het systeem meldt een fout</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>de persoonlijke map is niet bekend</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>%1 kan niet worden gewijzigd: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>Opties van de klok…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>Het programma tamsel-clock kan niet worden gestart.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>Voorbeeld van de klok</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>Tint</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>Kleurkiezer</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>Voorbeeld van de dagkleuren</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>Voorbeeld van de nachtkleuren</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>Kleuren van het voorbeeld</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>Zonnetijden hebben toegang tot de locatie nodig.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Zonnetijden gebruiken de opgeslagen locatie van deze computer en worden lokaal berekend.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>Wachten op de locatie van deze computer…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>Locatie niet beschikbaar. Sta toegang toe of gebruik aangepaste tijden.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>De locatie kon niet worden opgeslagen. Probeer het opnieuw of gebruik aangepaste tijden.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Zonnetijden gebruiken de locatie van deze computer en worden lokaal berekend.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>Locatie geweigerd. Sta toegang toe of gebruik aangepaste tijden.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>Locatie niet beschikbaar. Probeer het opnieuw of gebruik aangepaste tijden.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>Zonsondergang</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Zonsopkomst</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>Instelling voor het begin van de nachtmodus</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>Instelling voor het einde van de nachtmodus</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>Op deze locatie komt de zon vandaag niet op of gaat ze niet onder. Kies een aangepaste tijd.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>Aangepaste tijd</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>Locatie van deze computer bijwerken…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Locatie van deze computer gebruiken…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>De locatiekeuze kon niet worden geopend</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>Zonsopkomst en zonsondergang hebben de locatie van deze computer nodig</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Sta locatietoegang toe in het programma Pelko Location of kies ‘Aangepaste tijd’ in de menu’s ‘Van’ en ‘Tot’. De locatie blijft op deze computer.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Locatie van deze computer gebruiken</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>Oranje</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blauw</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>Crème</translation>
    </message>
    <message>
        <source>Nero</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Willekeurig</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Aangepast</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>Bij %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>Een stad of land zoeken</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Steden</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>Geen stad gevonden</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>Een breedtegraad is een aantal graden van −90 tot 90, zoals 60.17 of 33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>Een lengtegraad is een aantal graden van −180 tot 180, zoals 24.94 of 70.5 W.</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>&amp;Breedtegraad</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>&amp;Lengtegraad</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>Waar komt uw zon op?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>De klok heeft uw locatie nodig om bij zonsondergang naar de nachtkleuren over te gaan en bij zonsopkomst terug. De locatie blijft op deze computer.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>Voorgesteld op basis van uw tijdzone; er is nog niets opgeslagen.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>Opgeslagen. Klokken die draaien volgen meteen.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>Vergeten. Een klok die draait houdt zijn zonnetijden tot hij stopt.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>Een ander programma heeft de opgeslagen locatie vergeten.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>Een ander programma heeft deze plaats opgeslagen.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>Een ander programma heeft een andere plaats opgeslagen.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>Gevonden, maar nog niet opgeslagen.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>Deze plaats opslaan?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>De gekozen plaats is nog niet opgeslagen.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Niet opslaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>Kies een plaats om de zonsopkomst en zonsondergang te zien.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>De zon komt daar vandaag niet op of gaat er niet onder en kan dus geen nacht beginnen of beëindigen.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>Vandaag: zonsopkomst %1, zonsondergang %2 volgens de klok van deze computer</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>Vandaag: zonsopkomst %1, zonsondergang %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Geen plaats gekozen</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Gekozen plaats</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>Locatie ve&amp;rgeten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Opslaan</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>&amp;Mijn locatie zoeken</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>Uw locatie wordt gezocht</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>Het bureaublad geeft nu geen locaties aan programma’s. Zet de locatiedienst ervan aan en probeer het opnieuw, of kies een stad.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>Uw locatie wordt gezocht… U kunt ook een stad kiezen.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>Toegang tot uw locatie is geweigerd. Sta die toe en probeer het opnieuw, of kies een stad.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>Geen locatiedienst heeft geantwoord. Probeer het opnieuw of kies een stad.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>Zoeken sto&amp;ppen</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>Uw toestemming wordt gevraagd… U kunt ook een stad kiezen.</translation>
    </message>
</context>
</TS>
