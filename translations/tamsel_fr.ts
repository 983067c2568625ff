<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>Dessiner dans la fenêtre que nomme XSCREENSAVER_WINDOW, sinon dans la fenêtre racine.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>Dessiner dans la fenêtre ID comme vignette des réglages.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>Afficher l’horloge dans une fenêtre ordinaire.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>Taille de la fenêtre ou de l’image, en points.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>Écrire une image au format PNG dans FILE ; aucun affichage n’est nécessaire.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>Pixels de l’image par point.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>Heure locale de l’image, par exemple 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>Dessiner l’image comme vignette des réglages.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>Attendre, et afficher l’horloge après [MINUTES] minutes d’inactivité, sinon après 4.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>Démarrer cette attente avec chaque session, « on » ou « off ».</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>Inscrire l’horloge dans la liste des économiseurs de ~/.xscreensaver.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>Retirer l’horloge de cette liste.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>Afficher les options ; se termine par 0 après « OK », par 3 après « Annuler ».</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>Afficher le réglage [KEY], ou tous avec leurs clés.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>Enregistrer un réglage : KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>Écrire la fenêtre des options au format PNG dans FILE ; aucun affichage n’est nécessaire.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>Dessiner la fenêtre des options en apparence sombre.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>valeur incorrecte pour --%1 : « %2 »</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 exige --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> ou --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 et --%2 s’excluent</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argument inattendu « %1 »</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 exige KEY et VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>une image avec ce --size et ce --scale dépasse %1 pixels</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>Une grande horloge murale sobre qui remplit un écran inactif. Sans option, elle couvre tous les
écrans et s’arrête à une touche, un clic ou un mouvement du pointeur.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>aucun affichage : ni compositeur Wayland ni serveur X ne répond</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>impossible de supprimer %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>l’attente est déjà en cours dans cette session</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>impossible de verrouiller %1</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>rien dans cette session n’indique quand l’utilisateur est inactif</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>il n’y a pas de fenêtre 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>les ressources de l’horloge sont introuvables : %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>mémoire insuffisante pour l’image</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>aucun affichage X n’est accessible</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>il n’y a pas de réglage « %1 »</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>valeur incorrecte pour %1 : « %2 »</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>impossible de lire %1</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver ne peut pas lancer un programme de ce nom : %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>« %1 » n’est pas LAT,LON en degrés, comme 60.17,24.94 ou -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set attend LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>trop d’arguments ; voir --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>option inconnue « %1 » ; voir --help</translation>
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
        <translation>Utilisation : pelko-location [OPTION]
Choisit le lieu dont l’horloge suit le lever et le coucher du soleil. La position reste sur cet ordinateur.

Sans option, une fenêtre s’ouvre.
  --set LAT,LON  Enregistrer une position en degrés, nord et est positifs : --set 60.17,24.94
  --show         Afficher la position enregistrée et le lever et le coucher du soleil du jour.
  --forget       Supprimer la position enregistrée.
  --help         Afficher cette aide.
  --version      Afficher la version.

Code de sortie : 0 succès, 1 échec (une ligne sur stderr dit pourquoi), 2 mauvaise utilisation.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>aucune position n’est enregistrée</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>aucun affichage n’est accessible ; --set enregistre une position sans affichage</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>aucun affichage : la plateforme « %1 » n’a pas d’écran</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>Position de l’horloge</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>Choisir le lieu dont Tamsel Clock suit le lever et le coucher du soleil</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>position;lieu;lever;coucher;soleil;nuit;horloge;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>La nuit de l’horloge commence et finit avec le coucher et le lever du soleil chez vous. La position reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>Horloge murale</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>Remplir l’écran d’une grande horloge murale</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>horloge;heure;économiseur d’écran;veille;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>Afficher dans une fenêtre</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>Une grande horloge murale sobre pour l’écran inactif</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock remplit l’écran inactif d’une grande horloge murale sobre. L’aiguille des minutes saute une fois par minute et la trotteuse glisse.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>Quatre cadrans, l’un d’eux au hasard, ou deux couleurs de votre choix</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>Le mois à côté ou au-dessous du cadran</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>Une palette plus sombre pour la nuit, entre deux heures de la journée ou du coucher au lever du soleil</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>Chez elle dans XScreenSaver, dans les économiseurs d’écran de MATE et de Xfce, dans xsecurelock et sous Wayland, ou seule : elle peut attendre que vous soyez inactif</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Options de Tamsel Clock</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>Options de l’économiseur d’écran</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>Choisir les couleurs, le calendrier et la nuit de l’horloge murale</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>horloge;économiseur d’écran;couleur;nuit;calendrier;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>Une grande horloge murale sobre</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>Choisissez une autre heure de fin.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>Le début et la fin du mode nuit doivent être différents.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>Impossible d’enregistrer les options</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>Couleur principale de jour, en hexadécimal</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>Couleur principale de jour</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>Couleur d’arrière-plan de jour, en hexadécimal</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>Couleur d’arrière-plan de jour</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>Couleur principale de nuit, en hexadécimal</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>Couleur principale de nuit</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>Couleur d’arrière-plan de nuit, en hexadécimal</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>Couleur d’arrière-plan de nuit</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>Échanger les couleurs</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>Échanger les couleurs de nuit</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>Échanger les couleurs de jour</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Couleur principale</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>Calendrier mensuel</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>Mode nuit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>Le mode nuit commence à</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>Le mode nuit se termine à</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>un autre programme y écrit</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>son système de fichiers refuse les verrous</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>vous n’avez pas la permission</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>autre chose se trouve à sa place</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>une partie de son contenu serait perdue</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>le système signale une erreur</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>le dossier personnel est inconnu</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>Impossible de modifier %1 : %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>Options de l’horloge…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>Impossible de lancer le programme tamsel-clock.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>Aperçu de l’horloge</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>Sélecteur de couleur</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>Aperçu des couleurs de jour</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>Aperçu des couleurs de nuit</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>Couleurs de l’aperçu</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>Les heures du soleil nécessitent l’accès à la position.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Les heures du soleil utilisent la position enregistrée de cet ordinateur et sont calculées localement.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>En attente de la position de cet ordinateur…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>Position indisponible. Autorisez l’accès ou utilisez des heures personnalisées.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>Impossible d’enregistrer la position. Réessayez ou utilisez des heures personnalisées.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Les heures du soleil utilisent la position de cet ordinateur et sont calculées localement.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>Position refusée. Autorisez l’accès ou utilisez des heures personnalisées.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>Position indisponible. Réessayez ou utilisez des heures personnalisées.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>Coucher du soleil</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Lever du soleil</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>Réglage du début du mode nuit</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>Réglage de la fin du mode nuit</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>Le soleil ne se lève ou ne se couche pas aujourd’hui à cet endroit. Choisissez une heure personnalisée.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>Heure personnalisée</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>Actualiser la position de cet ordinateur…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Utiliser la position de cet ordinateur…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>Impossible d’ouvrir le choix de la position</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>Le lever et le coucher du soleil nécessitent la position de cet ordinateur</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Autorisez l’accès à la position dans l’application Pelko Location ou choisissez « Heure personnalisée » dans les menus « De » et « À ». La position reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Utiliser la position de cet ordinateur</translation>
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
        <translation>Bleu</translation>
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
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>Près de %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>Rechercher une ville ou un pays</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Villes</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>Aucune ville trouvée</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>Une latitude est un nombre de degrés entre −90 et 90, comme 60.17 ou 33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>Une longitude est un nombre de degrés entre −180 et 180, comme 24.94 ou 70.5 W.</translation>
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
        <translation>Où se lève votre soleil ?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>L’horloge a besoin de votre position pour passer à ses couleurs de nuit au coucher du soleil et revenir à son lever. La position reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>Suggéré d’après votre fuseau horaire ; rien n’est encore enregistré.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>Enregistré. Les horloges en cours s’adaptent aussitôt.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>Oublié. Une horloge en cours garde ses heures du soleil jusqu’à son arrêt.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>Un autre programme a oublié la position enregistrée.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>Un autre programme a enregistré ce lieu.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>Un autre programme a enregistré un autre lieu.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>Position trouvée, mais pas encore enregistrée.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>Enregistrer ce lieu ?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>Le lieu choisi n’est pas encore enregistré.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>Choisissez un lieu pour voir le lever et le coucher du soleil.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>Le soleil ne s’y lève ou ne s’y couche pas aujourd’hui ; il ne peut donc pas commencer ou finir une nuit.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>Aujourd’hui : lever du soleil à %1, coucher à %2 à l’horloge de cet ordinateur</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>Aujourd’hui : lever du soleil à %1, coucher à %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Aucun lieu choisi</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Lieu choisi</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>Oublie&amp;r la position</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>&amp;Trouver ma position</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>Recherche de votre position</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>Le bureau ne donne pas de position aux programmes en ce moment. Activez son service de localisation et réessayez, ou choisissez une ville.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>Recherche de votre position… Vous pouvez aussi choisir une ville.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>L’accès à votre position a été refusé. Autorisez-le et réessayez, ou choisissez une ville.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>Aucun service de localisation n’a répondu. Réessayez ou choisissez une ville.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>Arrê&amp;ter la recherche</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>Demande de votre accord… Vous pouvez aussi choisir une ville.</translation>
    </message>
</context>
</TS>
