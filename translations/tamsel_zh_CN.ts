<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>绘制到 XSCREENSAVER_WINDOW 指定的窗口，否则绘制到根窗口。</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>作为设置缩略图绘制到窗口 ID。</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>在普通窗口中显示时钟。</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>窗口或图片的大小，以点为单位。</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>将一帧以 PNG 格式写入 FILE；不需要显示器。</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>图片每点的像素数。</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>图片的本地时间，例如 2026-03-14T22:08:30.5。</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>将图片绘制为设置缩略图。</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>等待，并在用户空闲 [MINUTES] 分钟（默认 4 分钟）后显示时钟。</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>随每次会话启动此等待，“on”或“off”。</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>将时钟加入 ~/.xscreensaver 的屏幕保护程序列表。</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>将时钟从该列表中移除。</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>显示选项；按“确定”后以 0 结束，按“取消”后以 3 结束。</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>输出设置 [KEY]，或输出所有设置及其键。</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>保存一项设置：KEY VALUE。</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>将选项窗口以 PNG 格式写入 FILE；不需要显示器。</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>以深色外观绘制选项窗口。</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>输出此帮助。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>输出版本。</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>--%1 的值无效：“%2”</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 需要 --%2</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> 或 --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 与 --%2 不能同时使用</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>多余的参数“%1”</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 需要 KEY 和 VALUE</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>该 --size 和 --scale 的图片大于 %1 像素</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>一个占满空闲屏幕的大型扁平挂钟。不带选项时覆盖所有屏幕，
按下按键、按钮或移动指针时结束。</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>没有显示器：Wayland 合成器和 X 服务器均无响应</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>无法移除 %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>此会话已在等待</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>无法锁定 %1</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>此会话无法得知用户何时空闲</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>没有窗口 0x%1</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>缺少时钟的资源：%1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>内存不足，无法生成图片</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>无法连接任何 X 显示器</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>没有设置“%1”</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>%1 的值无效：“%2”</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver 无法运行该名称的程序：%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>“%1”不是以度为单位的 LAT,LON，例如 60.17,24.94 或 -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set 需要一个 LAT,LON</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>参数过多；请参阅 --help</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>未知选项“%1”；请参阅 --help</translation>
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
        <translation>用法：pelko-location [选项]
选择时钟所依据的日出日落地点。位置信息只保留在此计算机上。

不带选项时打开一个窗口。
  --set LAT,LON  以度为单位保存位置，北和东为正：--set 60.17,24.94
  --show         输出已保存的位置和今天的日出日落时间。
  --forget       移除已保存的位置。
  --help         输出此帮助。
  --version      输出版本。

退出状态：0 成功，1 无法完成（stderr 上有一行说明原因），2 用法错误。
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>没有保存的位置</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>无法连接显示器；--set 可在没有显示器时保存位置</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>没有显示器：平台“%1”没有屏幕</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>时钟的位置</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>选择 Tamsel Clock 所依据的日出日落地点</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>位置;地点;日出;日落;夜间;时钟;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>时钟的夜间随您所在地的日落和日出开始和结束。位置信息保留在此计算机上。</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>挂钟</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>用一个大型挂钟占满屏幕</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>时钟;时间;屏幕保护程序;空闲;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>在窗口中显示</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>用于空闲屏幕的大型扁平挂钟</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock 用一个大型扁平挂钟占满空闲屏幕。分针每分钟跳动一次，秒针平滑扫过。</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>四种表盘、其中随机一种，或您自选的两种颜色</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>表盘旁边或下方的月历</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>夜间使用更深的配色，可在两个时刻之间，或从日落到日出</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>适用于 XScreenSaver、MATE 和 Xfce 的屏幕保护程序、xsecurelock 以及 Wayland；也可单独运行，等到您空闲时出现</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Tamsel Clock 选项</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>屏幕保护程序选项</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>选择挂钟的颜色、月历和夜间模式</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>时钟;屏幕保护程序;颜色;夜间;月历;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>一个大型扁平挂钟</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>请选择其他结束时间。</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>夜间模式的开始时间和结束时间不能相同。</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>无法保存选项</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>日间主色（十六进制）</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>日间主色</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>日间背景色（十六进制）</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>日间背景色</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>夜间主色（十六进制）</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>夜间主色</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>夜间背景色（十六进制）</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>夜间背景色</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>交换颜色</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>交换夜间颜色</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>交换日间颜色</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>主色</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>月历</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>夜间模式</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>夜间模式开始于</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>夜间模式结束于</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>另一个程序正在写入</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>其文件系统不支持锁定</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>您没有权限</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>磁盘为只读</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>该位置已有其他内容</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>其中部分内容将会丢失</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>系统报告错误</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>主文件夹未知</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>无法更改 %1：%2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>时钟选项…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>无法启动程序 tamsel-clock。</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>时钟预览</translation>
    </message>
</context>
<context>
    <name>TamselColorPopover</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>拾色器</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>预览日间颜色</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>预览夜间颜色</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>预览配色</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>太阳时间需要位置权限。</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>太阳时间使用此计算机已保存的位置，在本地计算。</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>正在等待此计算机的位置…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>位置不可用。请允许访问或使用自定义时间。</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>无法保存位置。请重试或使用自定义时间。</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>太阳时间使用此计算机的位置，在本地计算。</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>位置访问被拒绝。请允许访问或使用自定义时间。</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>位置不可用。请重试或使用自定义时间。</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>日落</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>日出</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>夜间模式开始设置</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>夜间模式结束设置</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>此位置今天没有日出或日落。请选择自定义时间。</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>自定义时间</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>更新此计算机的位置…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>使用此计算机的位置…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>无法打开位置设置</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>日出和日落需要此计算机的位置</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>请在 Pelko Location 应用中允许访问位置，或在“从”和“到”菜单中选择“自定义时间”。位置信息只保留在此计算机上。</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>使用此计算机的位置</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>奶油色</translation>
    </message>
    <message>
        <source>Nero</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>%1附近</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>搜索城市或国家</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>未找到城市</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>纬度是 −90 到 90 之间的度数，例如 60.17 或 33.87 S。</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>经度是 −180 到 180 之间的度数，例如 24.94 或 70.5 W。</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>纬度(&amp;A)</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>经度(&amp;O)</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>您的太阳从哪里升起？</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>时钟需要您的位置，以便在日落时切换到夜间颜色，在日出时切换回来。位置信息只保留在此计算机上。</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>根据您的时区建议；尚未保存。</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>已保存。正在运行的时钟会立即跟随。</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>已忘记。正在运行的时钟在结束前会保留其太阳时间。</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>另一个程序忘记了已保存的位置。</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>另一个程序保存了此地点。</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>另一个程序保存了其他地点。</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>已找到，但尚未保存。</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>保存此地点？</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>您选择的地点尚未保存。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>选择一个地点以查看其日出和日落。</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>那里今天没有日出或日落，因此无法作为夜间的开始或结束。</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>今天：日出 %1，日落 %2（按此计算机的时钟）</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>今天：日出 %1，日落 %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>未选择地点</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>所选地点</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>忘记位置(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
</context>
<context>
    <name>location::ServiceFinder</name>
    <message>
        <source>&amp;Find my location</source>
        <translation>查找我的位置(&amp;F)</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>正在查找您的位置</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>桌面目前不向程序提供位置。请打开其位置服务后重试，或选择一个城市。</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>正在查找您的位置… 您也可以选择一个城市。</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>访问您的位置被拒绝。请允许访问后重试，或选择一个城市。</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>没有位置服务响应。请重试，或选择一个城市。</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>停止查找(&amp;F)</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>正在请求您的同意… 您也可以选择一个城市。</translation>
    </message>
</context>
</TS>
