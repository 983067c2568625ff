<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>الرسم في النافذة التي يحددها XSCREENSAVER_WINDOW، وإلا ففي النافذة الجذر.</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>الرسم في النافذة ID كصورة مصغرة للإعدادات.</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>عرض الساعة في نافذة عادية.</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>حجم النافذة أو الصورة بالنقاط.</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>كتابة صورة واحدة بصيغة PNG في FILE؛ لا تلزم شاشة.</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>عدد بكسلات الصورة لكل نقطة.</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>الوقت المحلي للصورة، مثل 2026-03-14T22:08:30.5.</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>رسم الصورة كصورة مصغرة للإعدادات.</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>الانتظار وعرض الساعة عند خمول المستخدم [MINUTES] دقيقة، وإلا فبعد 4 دقائق.</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>بدء هذا الانتظار مع كل جلسة، &quot;on&quot; أو &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>إدراج الساعة في قائمة حافظات الشاشة في ~/.xscreensaver.</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>إزالة الساعة من تلك القائمة.</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>عرض الخيارات؛ ينتهي بالقيمة 0 بعد «موافق» و3 بعد «إلغاء».</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>طباعة الإعداد [KEY]، أو جميع الإعدادات بمفاتيحها.</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>حفظ إعداد: KEY VALUE.</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>كتابة نافذة الخيارات بصيغة PNG في FILE؛ لا تلزم شاشة.</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>رسم نافذة الخيارات بمظهر داكن.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>طباعة هذه المساعدة.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>طباعة الإصدار.</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>قيمة غير صالحة للخيار --%1:‏ &apos;%2&apos;</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>الخيار --%1 يتطلب --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> أو --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>الخياران --%1 و--%2 لا يجتمعان</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>معامل غير متوقع &apos;%1&apos;</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>الخيار --%1 يتطلب KEY وVALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>صورة بهذا --size و--scale أكبر من %1 بكسل</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>ساعة حائط كبيرة مسطحة تملأ الشاشة الخاملة. بلا خيارات تغطي كل الشاشات
وتنتهي عند ضغط مفتاح أو زر أو تحريك المؤشر.</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>لا توجد شاشة: لا يستجيب أي مدير عرض Wayland ولا خادم X</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>تتعذر إزالة %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>تتعذر الكتابة في %1</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>الانتظار جارٍ بالفعل في هذه الجلسة</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>يتعذر قفل %1</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>لا شيء في هذه الجلسة يخبر بخمول المستخدم</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>لا توجد نافذة 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>موارد الساعة مفقودة: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>لا تكفي الذاكرة للصورة</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>تتعذر الكتابة في %1: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>يتعذر الوصول إلى أي شاشة X</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>لا يوجد إعداد &apos;%1&apos;</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>قيمة غير صالحة للإعداد %1:‏ &apos;%2&apos;</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>تتعذر قراءة %1</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>لا يمكن لـ XScreenSaver تشغيل برنامج بهذا الاسم: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>&apos;%1&apos; ليس LAT,LON بالدرجات، مثل 60.17,24.94 أو -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>الخيار --set يتطلب LAT,LON واحدًا</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>معاملات كثيرة؛ انظر --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>خيار غير معروف &apos;%1&apos;؛ انظر --help</translation>
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
        <translation>الاستخدام: pelko-location [خيار]
يختار المكان الذي تتبع الساعة شروق شمسه وغروبها. يبقى الموقع على هذا الحاسوب.

بلا خيارات تُفتح نافذة.
  --set LAT,LON  حفظ موقع بالدرجات، الشمال والشرق موجبان: --set 60.17,24.94
  --show         طباعة الموقع المحفوظ وشروق شمس اليوم وغروبها.
  --forget       إزالة الموقع المحفوظ.
  --help         طباعة هذه المساعدة.
  --version      طباعة الإصدار.

حالة الخروج: 0 نجاح، 1 تعذر التنفيذ (سطر على stderr يذكر السبب)، 2 استخدام خاطئ.
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>لا يوجد موقع محفوظ</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>يتعذر الوصول إلى أي شاشة؛ الخيار --set يحفظ موقعًا بلا شاشة</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>لا توجد شاشة: المنصة &apos;%1&apos; بلا شاشات</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>موقع الساعة</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>اختر المكان الذي تتبع Tamsel Clock شروق شمسه وغروبها</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>موقع;مكان;شروق;غروب;ليل;ساعة;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>يبدأ ليل الساعة وينتهي مع غروب الشمس وشروقها لديك. يبقى الموقع على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>ساعة حائط</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>املأ الشاشة بساعة حائط كبيرة واحدة</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>ساعة;وقت;حافظة الشاشة;خمول;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>عرض في نافذة</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>ساعة حائط كبيرة مسطحة للشاشة الخاملة</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>يملأ Tamsel Clock الشاشة الخاملة بساعة حائط كبيرة مسطحة. يقفز عقرب الدقائق مرة كل دقيقة وينساب عقرب الثواني.</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>أربعة وجوه للساعة، أو أحدها عشوائيًا، أو لونان من اختيارك</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>الشهر بجانب وجه الساعة أو أسفله</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>ألوان أغمق لليل، بين وقتين من اليوم أو من الغروب إلى الشروق</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>يعمل ضمن XScreenSaver وحافظتي شاشة MATE وXfce وxsecurelock وعلى Wayland، أو بمفرده: يمكنه الانتظار حتى تصبح خاملًا</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>خيارات Tamsel Clock</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>خيارات حافظة الشاشة</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>اختر ألوان ساعة الحائط وتقويمها وليلها</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>ساعة;حافظة الشاشة;لون;ليل;تقويم;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>ساعة حائط كبيرة مسطحة</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>اختر وقت انتهاء آخر.</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>يجب أن يختلف وقتا بدء الوضع الليلي وانتهائه.</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>تعذر حفظ الخيارات</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>لون النهار الأساسي، ست عشري</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>لون النهار الأساسي</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>لون خلفية النهار، ست عشري</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>لون خلفية النهار</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>لون الليل الأساسي، ست عشري</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>لون الليل الأساسي</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>لون خلفية الليل، ست عشري</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>لون خلفية الليل</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>تبديل اللونين</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>تبديل لوني الليل</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>تبديل لوني النهار</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>اللون الأساسي</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>الخلفية</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>التقويم الشهري</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>الوضع الليلي</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>يبدأ الوضع الليلي في</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>ينتهي الوضع الليلي في</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>برنامج آخر يكتب فيه الآن</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>نظام ملفاته لا يقبل الأقفال</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>لا تملك الصلاحية</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>القرص للقراءة فقط</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>يوجد شيء آخر في مكانه</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>سيُفقد بعض محتواه</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>يبلغ النظام عن خطأ</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>مجلد المنزل غير معروف</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>يتعذر تغيير %1: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>خيارات الساعة…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>تعذّر تشغيل البرنامج tamsel-clock.</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>معاينة الساعة</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>الصبغة</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>التشبع</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>منتقي الألوان</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>معاينة ألوان النهار</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>معاينة ألوان الليل</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>ألوان المعاينة</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>أوقات الشمس تحتاج إلى إذن الموقع.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>تستخدم أوقات الشمس الموقع المحفوظ لهذا الحاسوب وتُحسب محليًا.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>في انتظار موقع هذا الحاسوب…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>الموقع غير متاح. اسمح بالوصول أو استخدم أوقاتًا مخصصة.</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>تعذر حفظ الموقع. أعد المحاولة أو استخدم أوقاتًا مخصصة.</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>تستخدم أوقات الشمس موقع هذا الحاسوب وتُحسب محليًا.</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>رُفض الموقع. اسمح بالوصول أو استخدم أوقاتًا مخصصة.</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>الموقع غير متاح. أعد المحاولة أو استخدم أوقاتًا مخصصة.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>غروب الشمس</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>شروق الشمس</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>إعداد بدء الوضع الليلي</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>إعداد انتهاء الوضع الليلي</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>لا تشرق الشمس أو لا تغرب اليوم في هذا الموقع. اختر وقتًا مخصصًا.</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>وقت مخصص</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>تحديث موقع هذا الحاسوب…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>استخدام موقع هذا الحاسوب…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>تعذر فتح إعداد الموقع</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>الشروق والغروب يحتاجان إلى موقع هذا الحاسوب</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>اسمح بالوصول إلى الموقع في تطبيق Pelko Location أو اختر «وقت مخصص» في قائمتي «من» و«إلى». يبقى الموقع على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>استخدام موقع هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>كريمي</translation>
    </message>
    <message>
        <source>Nero</source>
        <translation>نيرو</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>عشوائي</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>قرب %1</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>البحث عن مدينة أو بلد</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>المدن</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>لم يُعثر على مدينة</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>خط العرض عدد من الدرجات بين ‎−90 و90، مثل ‎60.17 أو ‎33.87 S.</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>خط الطول عدد من الدرجات بين ‎−180 و180، مثل ‎24.94 أو ‎70.5 W.</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>خط ال&amp;عرض</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>خط ال&amp;طول</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>أين تشرق شمسك؟</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>تحتاج الساعة إلى موقعك لتتحول إلى ألوان الليل عند الغروب وتعود عند الشروق. يبقى الموقع على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>مقترح حسب منطقتك الزمنية؛ لم يُحفظ شيء بعد.</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>حُفظ. تتبعه الساعات الجارية فورًا.</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>نُسي الموقع. تحتفظ الساعة الجارية بأوقات شمسها حتى تنتهي.</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>نسي برنامج آخر الموقع المحفوظ.</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>حفظ برنامج آخر هذا المكان.</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>حفظ برنامج آخر مكانًا غيره.</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>عُثر عليه، لكنه لم يُحفظ بعد.</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>هل تريد حفظ هذا المكان؟</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>المكان الذي اخترته لم يُحفظ بعد.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>عدم الحفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>اختر مكانًا لترى شروق شمسه وغروبها.</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>لا تشرق الشمس أو لا تغرب هناك اليوم، فلا يمكنها أن تبدأ الليل أو تنهيه.</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>اليوم: الشروق %1، الغروب %2 بتوقيت هذا الحاسوب</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>اليوم: الشروق %1، الغروب %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>لم يُختر مكان</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>المكان المختار</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>&amp;نسيان الموقع</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>ال&amp;بحث عن موقعي</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>جارٍ البحث عن موقعك</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>لا يعطي سطح المكتب المواقع للبرامج الآن. شغّل خدمة الموقع فيه وأعد المحاولة، أو اختر مدينة.</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>جارٍ البحث عن موقعك… يمكنك اختيار مدينة بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>رُفض الوصول إلى موقعك. اسمح به وأعد المحاولة، أو اختر مدينة.</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>لم تستجب أي خدمة موقع. أعد المحاولة، أو اختر مدينة.</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>إيقاف ال&amp;بحث</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>جارٍ طلب موافقتك… يمكنك اختيار مدينة بدلًا من ذلك.</translation>
    </message>
</context>
</TS>
