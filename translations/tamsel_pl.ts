<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>Rysuje w oknie podanym w XSCREENSAVER_WINDOW, a bez niego w oknie głównym.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>Rysuje w oknie ID jako miniatura ustawień.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>Pokazuje zegar w zwykłym oknie.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>Rozmiar okna lub obrazu w punktach.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>Zapisuje jeden obraz PNG do pliku FILE; nie wymaga ekranu.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>Liczba pikseli obrazu na punkt.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>Czas lokalny obrazu, na przykład 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>Rysuje obraz jako miniaturę ustawień.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>Czeka i pokazuje zegar po [MINUTES] minutach bezczynności, domyślnie po 4.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>Uruchamia to czekanie z każdą sesją, „on” lub „off”.</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>Dodaje zegar do listy wygaszaczy w ~/.xscreensaver.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>Usuwa zegar z tej listy.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>Pokazuje opcje; kończy się stanem 0 po „OK”, a 3 po „Anuluj”.</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>Wypisuje ustawienie [KEY] lub wszystkie wraz z kluczami.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>Zapisuje ustawienie: KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>Zapisuje okno opcji jako PNG do pliku FILE; nie wymaga ekranu.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>Rysuje okno opcji w ciemnym wyglądzie.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Wypisuje tę pomoc.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Wypisuje wersję.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>błędna wartość --%1: „%2”</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 wymaga --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> lub --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 i --%2 wykluczają się</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>nieoczekiwany argument „%1”</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 wymaga KEY i VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>obraz o takich --size i --scale jest większy niż %1 pikseli</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>Duży, płaski zegar ścienny, który wypełnia nieużywany ekran. Bez opcji zakrywa wszystkie
ekrany i kończy pracę po naciśnięciu klawisza lub przycisku albo ruchu wskaźnika.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>brak ekranu: nie odpowiada ani kompozytor Wayland, ani serwer X</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>nie można usunąć %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>nie można zapisać %1</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>oczekiwanie w tej sesji już trwa</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>nie można zablokować %1</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>nic w tej sesji nie informuje o bezczynności użytkownika</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>nie ma okna 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>brak zasobów zegara: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>za mało pamięci na obraz</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>nie można zapisać %1: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>żaden ekran X nie jest dostępny</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>nie ma ustawienia „%1”</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>błędna wartość %1: „%2”</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>nie można odczytać %1</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver nie może uruchomić programu o tej nazwie: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>„%1” to nie LAT,LON w stopniach, na przykład 60.17,24.94 lub -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set wymaga jednego LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>za dużo argumentów; zobacz --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>nieznana opcja „%1”; zobacz --help</translation>
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
        <translation>Użycie: pelko-location [OPCJA]
Wybiera miejsce, według którego wschodu i zachodu słońca działa zegar. Położenie pozostaje na tym komputerze.

Bez opcji otwiera się okno.
  --set LAT,LON  Zapisuje położenie w stopniach, północ i wschód dodatnie: --set 60.17,24.94
  --show         Wypisuje zapisane położenie oraz dzisiejszy wschód i zachód słońca.
  --forget       Usuwa zapisane położenie.
  --help         Wypisuje tę pomoc.
  --version      Wypisuje wersję.

Stan wyjścia: 0 sukces, 1 nie udało się (wiersz na stderr mówi dlaczego), 2 błędne użycie.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>żadne położenie nie jest zapisane</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>żaden ekran nie jest dostępny; --set zapisuje położenie bez ekranu</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>brak ekranu: platforma „%1” nie ma żadnego</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>Położenie zegara</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>Wybór miejsca, według którego wschodu i zachodu słońca działa Tamsel Clock</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>położenie;miejsce;wschód;zachód;słońce;noc;zegar;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>Noc zegara zaczyna się i kończy wraz z zachodem i wschodem słońca u Ciebie. Położenie pozostaje na tym komputerze.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>Zegar ścienny</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>Wypełnia ekran dużym zegarem ściennym</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>zegar;czas;wygaszacz ekranu;bezczynność;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>Pokaż w oknie</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>Duży, płaski zegar ścienny na nieużywany ekran</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock wypełnia nieużywany ekran dużym, płaskim zegarem ściennym. Wskazówka minutowa przeskakuje raz na minutę, a sekundowa płynie.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>Cztery tarcze, losowa z nich albo dwa własne kolory</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>Miesiąc obok tarczy lub pod nią</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>Ciemniejsza paleta na noc, między dwiema godzinami albo od zachodu do wschodu słońca</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>Działa w XScreenSaver, w wygaszaczach MATE i Xfce, w xsecurelock i w Waylandzie albo samodzielnie: może czekać, aż przestaniesz używać komputera</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Opcje Tamsel Clock</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>Opcje wygaszacza ekranu</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>Wybór kolorów, kalendarza i nocy zegara ściennego</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>zegar;wygaszacz ekranu;kolor;noc;kalendarz;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>Duży, płaski zegar ścienny</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>Wybierz inną godzinę końca.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>Początek i koniec trybu nocnego muszą być różne.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>Nie można zapisać opcji</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>Główny kolor dnia, szesnastkowo</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>Główny kolor dnia</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>Kolor tła dnia, szesnastkowo</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>Kolor tła dnia</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>Główny kolor nocy, szesnastkowo</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>Główny kolor nocy</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>Kolor tła nocy, szesnastkowo</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>Kolor tła nocy</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>Zamień kolory</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>Zamień kolory nocy</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>Zamień kolory dnia</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Kolor główny</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Motyw</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>Kalendarz miesiąca</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Tryb nocny</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>Początek trybu nocnego</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>Koniec trybu nocnego</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>inny program właśnie go zapisuje</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>jego system plików nie pozwala na blokady</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>brak uprawnień</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>dysk jest tylko do odczytu</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>dysk jest pełny</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>w jego miejscu jest coś innego</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>część jego zawartości zostałaby utracona</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>system zgłasza błąd</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>katalog domowy nie jest znany</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>Nie można zmienić pliku %1: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>Opcje zegara…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>Nie można uruchomić programu tamsel-clock.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>Podgląd zegara</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>Odcień</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Nasycenie</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>Wybór koloru</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>Podgląd kolorów dnia</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>Podgląd kolorów nocy</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>Kolory podglądu</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>Godziny słońca wymagają dostępu do położenia.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Godziny słońca są obliczane lokalnie dla zapisanego położenia tego komputera.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>Oczekiwanie na położenie tego komputera…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>Położenie niedostępne. Zezwól na dostęp lub użyj własnych godzin.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>Nie można zapisać położenia. Spróbuj ponownie lub użyj własnych godzin.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Godziny słońca są obliczane lokalnie dla położenia tego komputera.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>Odmówiono położenia. Zezwól na dostęp lub użyj własnych godzin.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>Położenie niedostępne. Spróbuj ponownie lub użyj własnych godzin.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>Zachód słońca</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Wschód słońca</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>Ustawienie początku trybu nocnego</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>Ustawienie końca trybu nocnego</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>Dziś w tym miejscu słońce nie wschodzi lub nie zachodzi. Wybierz własną godzinę.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>Własna godzina</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>Zaktualizuj położenie tego komputera…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Użyj położenia tego komputera…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>Nie można otworzyć wyboru położenia</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>Wschód i zachód słońca wymagają położenia tego komputera</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Zezwól na dostęp do położenia w programie Pelko Location lub wybierz „Własna godzina” w menu „Od” i „Do”. Położenie pozostaje na tym komputerze.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Użyj położenia tego komputera</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>Pomarańczowy</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>Kremowy</translation>
    </message>
    <message>
        <source>Nero</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Losowy</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Własny</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>W pobliżu: %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>Szukaj miasta lub kraju</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Miasta</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>Nie znaleziono miasta</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>Szerokość geograficzna to liczba stopni od −90 do 90, na przykład 60.17 lub 33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>Długość geograficzna to liczba stopni od −180 do 180, na przykład 24.94 lub 70.5 W.</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>&amp;Szerokość geograficzna</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>&amp;Długość geograficzna</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>Gdzie wschodzi Twoje słońce?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>Zegar potrzebuje Twojego położenia, aby o zachodzie słońca przejść na kolory nocy, a o wschodzie wrócić. Położenie pozostaje na tym komputerze.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>Propozycja według strefy czasowej; nic jeszcze nie zapisano.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>Zapisano. Działające zegary od razu się dostosują.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>Zapomniano. Działający zegar zachowa swoje godziny słońca do zakończenia.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>Inny program zapomniał zapisane położenie.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>Inny program zapisał to miejsce.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>Inny program zapisał inne miejsce.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>Znaleziono, ale jeszcze nie zapisano.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>Zapisać to miejsce?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>Wybrane miejsce nie zostało jeszcze zapisane.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nie zapisuj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>Wybierz miejsce, aby zobaczyć jego wschód i zachód słońca.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>Słońce dziś tam nie wschodzi lub nie zachodzi, więc nie może zacząć ani zakończyć nocy.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>Dziś: wschód słońca %1, zachód %2 według zegara tego komputera</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>Dziś: wschód słońca %1, zachód %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Nie wybrano miejsca</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Wybrane miejsce</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>Zapomnij &amp;położenie</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Z&amp;apisz</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>Z&amp;najdź moje położenie</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>Szukanie Twojego położenia</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>Pulpit nie podaje teraz położenia programom. Włącz jego usługę położenia i spróbuj ponownie lub wybierz miasto.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>Szukanie Twojego położenia… Możesz też wybrać miasto.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>Odmówiono dostępu do Twojego położenia. Zezwól na niego i spróbuj ponownie lub wybierz miasto.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>Żadna usługa położenia nie odpowiedziała. Spróbuj ponownie lub wybierz miasto.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>Zatrzymaj szuka&amp;nie</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>Prośba o Twoją zgodę… Możesz też wybrać miasto.</translation>
    </message>
</context>
</TS>
