<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Console</name>
    <message>
        <source>Draw into the window that XSCREENSAVER_WINDOW names, or the root window.</source>
        <translation>XSCREENSAVER_WINDOW が示すウィンドウ、なければルートウィンドウに描画します。</translation>
    </message>
    <message>
        <source>Draw into the window ID as a settings thumbnail.</source>
        <translation>設定のサムネイルとしてウィンドウ ID に描画します。</translation>
    </message>
    <message>
        <source>Show the clock in an ordinary window.</source>
        <translation>通常のウィンドウに時計を表示します。</translation>
    </message>
    <message>
        <source>Size of the window or picture in points.</source>
        <translation>ウィンドウまたは画像の大きさ (ポイント単位)。</translation>
    </message>
    <message>
        <source>Write one frame to FILE as a PNG; needs no display.</source>
        <translation>1 フレームを PNG として FILE に書き込みます。ディスプレイは不要です。</translation>
    </message>
    <message>
        <source>Device pixels per point of the picture.</source>
        <translation>画像の 1 ポイントあたりのピクセル数。</translation>
    </message>
    <message>
        <source>Local time of the picture, as 2026-03-14T22:08:30.5.</source>
        <translation>画像の現地時刻。例: 2026-03-14T22:08:30.5</translation>
    </message>
    <message>
        <source>Draw the picture as a settings thumbnail.</source>
        <translation>画像を設定のサムネイルとして描画します。</translation>
    </message>
    <message>
        <source>Wait, and show the clock when the user is idle for [MINUTES], else for 4.</source>
        <translation>待機し、操作が [MINUTES] 分 (省略時は 4 分) ないと時計を表示します。</translation>
    </message>
    <message>
        <source>Let each session start with that waiting, &quot;on&quot; or &quot;off&quot;.</source>
        <translation>セッションごとにこの待機を開始します。&quot;on&quot; または &quot;off&quot;。</translation>
    </message>
    <message>
        <source>Enter the clock in the list of savers in ~/.xscreensaver.</source>
        <translation>~/.xscreensaver のスクリーンセーバー一覧に時計を登録します。</translation>
    </message>
    <message>
        <source>Take the clock out of that list.</source>
        <translation>その一覧から時計を取り除きます。</translation>
    </message>
    <message>
        <source>Show the options; ends with 0 after OK, with 3 after Cancel.</source>
        <translation>オプションを表示します。「OK」なら 0、「キャンセル」なら 3 で終了します。</translation>
    </message>
    <message>
        <source>Print the setting [KEY], or all with their keys.</source>
        <translation>設定 [KEY] を表示します。省略時はすべてをキーとともに表示します。</translation>
    </message>
    <message>
        <source>Store a setting: KEY VALUE.</source>
        <translation>設定を保存します: KEY VALUE</translation>
    </message>
    <message>
        <source>Write the options sheet to FILE as a PNG; needs no display.</source>
        <translation>オプション画面を PNG として FILE に書き込みます。ディスプレイは不要です。</translation>
    </message>
    <message>
        <source>Draw the options sheet in its dark appearance.</source>
        <translation>オプション画面を暗い外観で描画します。</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>bad value for --%1: &apos;%2&apos;</source>
        <translation>--%1 の値が正しくありません: &apos;%2&apos;</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 には --%2 が必要です</translation>
    </message>
    <message>
        <source> or --</source>
        <translation> または --</translation>
    </message>
    <message>
        <source>--%1 and --%2 exclude each other</source>
        <translation>--%1 と --%2 は同時に指定できません</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>余分な引数です: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>--%1 needs KEY and VALUE</source>
        <translation>--%1 には KEY と VALUE が必要です</translation>
    </message>
    <message>
        <source>a picture of that --size and --scale is larger than %1 pixels</source>
        <translation>この --size と --scale の画像は %1 ピクセルを超えます</translation>
    </message>
    <message>
        <source>One large, flat wall clock that fills an idle screen. Without an option it covers every
screen and ends on a key, a button or a movement of the pointer.</source>
        <translation>使われていない画面いっぱいに広がる、大きく平らな掛け時計です。オプションなしでは
すべての画面を覆い、キーやボタンを押すかポインターを動かすと終了します。</translation>
    </message>
    <message>
        <source>no display: neither a Wayland compositor nor an X server answers</source>
        <translation>ディスプレイがありません: Wayland コンポジターも X サーバーも応答しません</translation>
    </message>
    <message>
        <source>cannot remove %1</source>
        <translation>%1 を削除できません</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>already waiting in this session</source>
        <translation>このセッションではすでに待機しています</translation>
    </message>
    <message>
        <source>cannot lock %1</source>
        <translation>%1 をロックできません</translation>
    </message>
    <message>
        <source>nothing in this session tells when the user is idle</source>
        <translation>このセッションには操作のない時間を知る手段がありません</translation>
    </message>
    <message>
        <source>there is no window 0x%1</source>
        <translation>ウィンドウ 0x%1 はありません</translation>
    </message>
    <message>
        <source>the clock&apos;s resources are missing: %1</source>
        <translation>時計のリソースがありません: %1</translation>
    </message>
    <message>
        <source>not enough memory for the picture</source>
        <translation>画像のためのメモリが足りません</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>no X display can be reached</source>
        <translation>X ディスプレイに接続できません</translation>
    </message>
    <message>
        <source>there is no setting &apos;%1&apos;</source>
        <translation>&apos;%1&apos; という設定はありません</translation>
    </message>
    <message>
        <source>bad value for %1: &apos;%2&apos;</source>
        <translation>%1 の値が正しくありません: &apos;%2&apos;</translation>
    </message>
    <message>
        <source>cannot read %1</source>
        <translation>%1 を読み込めません</translation>
    </message>
    <message>
        <source>XScreenSaver cannot run a program of that name: %1</source>
        <translation>XScreenSaver はこの名前のプログラムを実行できません: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21</source>
        <translation>&apos;%1&apos; は度単位の LAT,LON ではありません。例: 60.17,24.94 または -33.87,151.21</translation>
    </message>
    <message>
        <source>--set wants one LAT,LON</source>
        <translation>--set には LAT,LON が 1 つ必要です</translation>
    </message>
    <message>
        <source>too many arguments; see --help</source>
        <translation>引数が多すぎます。--help を参照してください</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;; see --help</source>
        <translation>不明なオプション &apos;%1&apos;。--help を参照してください</translation>
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
        <translation>使い方: pelko-location [オプション]
時計が日の出と日の入りに従う場所を選びます。位置情報はこのコンピューターの外に出ません。

オプションなしではウィンドウが開きます。
  --set LAT,LON  位置を度で保存します (北と東が正): --set 60.17,24.94
  --show         保存した位置と今日の日の出・日の入りを表示します。
  --forget       保存した位置を削除します。
  --help         このヘルプを表示します。
  --version      バージョンを表示します。

終了ステータス: 0 成功、1 実行できない (理由を stderr に 1 行で表示)、2 使い方の誤り。
</translation>
    </message>
    <message>
        <source>no location is saved</source>
        <translation>保存された位置はありません</translation>
    </message>
    <message>
        <source>no display can be reached; --set saves a location without one</source>
        <translation>ディスプレイに接続できません。--set ならディスプレイなしで位置を保存できます</translation>
    </message>
    <message>
        <source>no display: the platform &apos;%1&apos; has no screen</source>
        <translation>ディスプレイがありません: プラットフォーム &apos;%1&apos; に画面がありません</translation>
    </message>
</context>
<context>
    <name>Descriptions</name>
    <message>
        <source>Location of the Clock</source>
        <translation>時計の位置</translation>
    </message>
    <message>
        <source>Choose the place whose sunrise and sunset Tamsel Clock follows</source>
        <translation>Tamsel Clock が日の出と日の入りに従う場所を選びます</translation>
    </message>
    <message>
        <source>location;place;sunrise;sunset;night;clock;</source>
        <translation>位置;場所;日の出;日の入り;夜;時計;</translation>
    </message>
    <message>
        <source>The clock&apos;s night begins and ends with your sunset and sunrise. The location stays on this computer.</source>
        <translation>時計の夜間は、現在地の日の入りと日の出に合わせて始まり、終わります。位置情報はこのコンピューターの外に出ません。</translation>
    </message>
    <message>
        <source>Wall Clock</source>
        <translation>掛け時計</translation>
    </message>
    <message>
        <source>Fill the screen with one large wall clock</source>
        <translation>画面いっぱいに大きな掛け時計を表示します</translation>
    </message>
    <message>
        <source>clock;time;screensaver;screen saver;idle;</source>
        <translation>時計;時刻;スクリーンセーバー;待機;</translation>
    </message>
    <message>
        <source>Show in a Window</source>
        <translation>ウィンドウに表示</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>One large, flat wall clock for an idle screen</source>
        <translation>使われていない画面のための大きく平らな掛け時計</translation>
    </message>
    <message>
        <source>Tamsel Clock fills an idle screen with one large, flat wall clock. The minute hand jumps once a minute and the second hand sweeps.</source>
        <translation>Tamsel Clock は、使われていない画面いっぱいに大きく平らな掛け時計を表示します。分針は 1 分ごとに進み、秒針はなめらかに動きます。</translation>
    </message>
    <message>
        <source>Four dials, a random one of them, or two colours of your own</source>
        <translation>4 つの文字盤、そのうちのランダムな 1 つ、または自分で選んだ 2 色</translation>
    </message>
    <message>
        <source>The month beside or below the dial</source>
        <translation>文字盤の横または下に月のカレンダー</translation>
    </message>
    <message>
        <source>A darker palette for the night, between two times of the day or from sunset to sunrise</source>
        <translation>2 つの時刻の間、または日の入りから日の出までの、夜のための暗めの配色</translation>
    </message>
    <message>
        <source>At home in XScreenSaver, in the MATE and Xfce screensavers, in xsecurelock and on Wayland, or alone: it can wait until you are idle</source>
        <translation>XScreenSaver、MATE と Xfce のスクリーンセーバー、xsecurelock、Wayland に対応。単独でも、操作がなくなるまで待機できます</translation>
    </message>
    <message>
        <source>Tamsel Clock Options</source>
        <translation>Tamsel Clock のオプション</translation>
    </message>
    <message>
        <source>Screen Saver Options</source>
        <translation>スクリーンセーバーのオプション</translation>
    </message>
    <message>
        <source>Choose the colours, calendar and night of the wall clock</source>
        <translation>掛け時計の色、カレンダー、夜間モードを選びます</translation>
    </message>
    <message>
        <source>clock;screensaver;screen saver;colour;night;calendar;</source>
        <translation>時計;スクリーンセーバー;色;夜;カレンダー;</translation>
    </message>
    <message>
        <source>One large, flat wall clock</source>
        <translation>大きく平らな掛け時計</translation>
    </message>
</context>
<context>
    <name>OptionsSheet</name>
    <message>
        <source>Colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Choose a different end time.</source>
        <translation>別の終了時刻を選んでください。</translation>
    </message>
    <message>
        <source>Night mode start and end times must be different.</source>
        <translation>夜間モードの開始と終了の時刻は異なる必要があります。</translation>
    </message>
    <message>
        <source>Could not save the options</source>
        <translation>オプションを保存できませんでした</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Day primary hex color</source>
        <translation>昼のメインカラー (16 進数)</translation>
    </message>
    <message>
        <source>Day primary color</source>
        <translation>昼のメインカラー</translation>
    </message>
    <message>
        <source>Day background hex color</source>
        <translation>昼の背景色 (16 進数)</translation>
    </message>
    <message>
        <source>Day background color</source>
        <translation>昼の背景色</translation>
    </message>
    <message>
        <source>Night primary hex color</source>
        <translation>夜のメインカラー (16 進数)</translation>
    </message>
    <message>
        <source>Night primary color</source>
        <translation>夜のメインカラー</translation>
    </message>
    <message>
        <source>Night background hex color</source>
        <translation>夜の背景色 (16 進数)</translation>
    </message>
    <message>
        <source>Night background color</source>
        <translation>夜の背景色</translation>
    </message>
    <message>
        <source>Swap colors</source>
        <translation>色を入れ替える</translation>
    </message>
    <message>
        <source>Swap night colors</source>
        <translation>夜の色を入れ替える</translation>
    </message>
    <message>
        <source>Swap day colors</source>
        <translation>昼の色を入れ替える</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>メインカラー</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Monthly calendar</source>
        <translation>月のカレンダー</translation>
    </message>
    <message>
        <source>Night Mode</source>
        <translation>夜間モード</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Night mode starts at</source>
        <translation>夜間モードの開始時刻</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Night mode ends at</source>
        <translation>夜間モードの終了時刻</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>StoreOutcome</name>
    <message>
        <source>another program is writing it</source>
        <translation>別のプログラムが書き込んでいます</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>ファイルシステムがロックに対応していません</translation>
    </message>
    <message>
        <source>you have no permission</source>
        <translation>権限がありません</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>ディスクは読み取り専用です</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>something else stands in its place</source>
        <translation>同じ場所に別のものがあります</translation>
    </message>
    <message>
        <source>some of what it holds would be lost</source>
        <translation>内容の一部が失われます</translation>
    </message>
    <message>
        <source>the system reports an error</source>
        <translation>システムがエラーを報告しました</translation>
    </message>
    <message>
        <source>the home folder is not known</source>
        <translation>ホームフォルダーがわかりません</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>%1 を変更できません: %2</translation>
    </message>
</context>
<context>
    <name>TamselClockOptions</name>
    <message>
        <source>Clock Options…</source>
        <translation>時計のオプション…</translation>
    </message>
    <message>
        <source>The program tamsel-clock cannot be started.</source>
        <translation>プログラム tamsel-clock を起動できません。</translation>
    </message>
</context>
<context>
    <name>TamselClockPreviewView</name>
    <message>
        <source>Clock preview</source>
        <translation>時計のプレビュー</translation>
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
        <translation>彩度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <translation>カラーピッカー</translation>
    </message>
</context>
<context>
    <name>TamselModeControl</name>
    <message>
        <source>Preview day colors</source>
        <translation>昼の色をプレビュー</translation>
    </message>
    <message>
        <source>Preview night colors</source>
        <translation>夜の色をプレビュー</translation>
    </message>
    <message>
        <source>Preview palette</source>
        <translation>プレビューの配色</translation>
    </message>
</context>
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times need location permission.</source>
        <translation>太陽の時刻には位置情報の許可が必要です。</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>太陽の時刻は、このコンピューターに保存された位置からこの場で計算されます。</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>このコンピューターの位置を待っています…</translation>
    </message>
    <message>
        <source>Location unavailable. Allow access or use custom times.</source>
        <translation>位置を取得できません。アクセスを許可するか、時刻を指定してください。</translation>
    </message>
    <message>
        <source>Could not save location. Retry or use custom times.</source>
        <translation>位置を保存できませんでした。もう一度試すか、時刻を指定してください。</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>太陽の時刻は、このコンピューターの位置からこの場で計算されます。</translation>
    </message>
    <message>
        <source>Location denied. Allow access or use custom times.</source>
        <translation>位置情報が拒否されました。アクセスを許可するか、時刻を指定してください。</translation>
    </message>
    <message>
        <source>Location unavailable. Retry or use custom times.</source>
        <translation>位置を取得できません。もう一度試すか、時刻を指定してください。</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Sunset</source>
        <translation>日の入り</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>日の出</translation>
    </message>
    <message>
        <source>Night mode start setting</source>
        <translation>夜間モードの開始の設定</translation>
    </message>
    <message>
        <source>Night mode end setting</source>
        <translation>夜間モードの終了の設定</translation>
    </message>
    <message>
        <source>No solar event today at this location. Choose a custom time.</source>
        <translation>この場所では今日は太陽が昇らないか沈みません。時刻を指定してください。</translation>
    </message>
    <message>
        <source>Custom time</source>
        <translation>時刻を指定</translation>
    </message>
    <message>
        <source>Update Mac location...</source>
        <translation>このコンピューターの位置を更新…</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>このコンピューターの位置を使用…</translation>
    </message>
    <message>
        <source>Could not open location setup</source>
        <translation>位置の設定を開けませんでした</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>日の出と日の入りには、このコンピューターの位置が必要です</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Pelko Location で位置情報へのアクセスを許可するか、「開始」と「終了」のメニューで「時刻を指定」を選んでください。位置情報はこのコンピューターの外に出ません。</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>このコンピューターの位置を使用</translation>
    </message>
</context>
<context>
    <name>Variants</name>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>ブルー</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>クリーム</translation>
    </message>
    <message>
        <source>Nero</source>
        <translation>ネロ</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
</context>
<context>
    <name>ZoneCities</name>
    <message>
        <source>Near %1</source>
        <translation>%1の近く</translation>
    </message>
</context>
<context>
    <name>location::CityChooser</name>
    <message>
        <source>Search for a city or country</source>
        <translation>都市または国を検索</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>都市</translation>
    </message>
    <message>
        <source>No city found</source>
        <translation>都市が見つかりません</translation>
    </message>
</context>
<context>
    <name>location::CoordinateFields</name>
    <message>
        <source>A latitude is a number of degrees from −90 to 90, such as 60.17 or 33.87 S.</source>
        <translation>緯度は −90 から 90 までの度数です。例: 60.17、33.87 S</translation>
    </message>
    <message>
        <source>A longitude is a number of degrees from −180 to 180, such as 24.94 or 70.5 W.</source>
        <translation>経度は −180 から 180 までの度数です。例: 24.94、70.5 W</translation>
    </message>
    <message>
        <source>L&amp;atitude</source>
        <translation>緯度(&amp;A)</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>経度(&amp;O)</translation>
    </message>
</context>
<context>
    <name>location::LocationWindow</name>
    <message>
        <source>Where does your sun rise?</source>
        <translation>太陽はどこから昇りますか?</translation>
    </message>
    <message>
        <source>The clock needs your location to change to its night colours at sunset and back at sunrise. It stays on this computer.</source>
        <translation>日の入りに夜の色へ、日の出に昼の色へ切り替えるために、時計にはあなたの位置が必要です。位置情報はこのコンピューターの外に出ません。</translation>
    </message>
    <message>
        <source>Suggested by your time zone; nothing is saved yet.</source>
        <translation>タイムゾーンからの候補です。まだ何も保存されていません。</translation>
    </message>
    <message>
        <source>Saved. Clocks that are running follow at once.</source>
        <translation>保存しました。実行中の時計にもすぐに反映されます。</translation>
    </message>
    <message>
        <source>Forgotten. A clock that is running keeps its sun times until it ends.</source>
        <translation>消去しました。実行中の時計は、終了するまで今の太陽の時刻を使います。</translation>
    </message>
    <message>
        <source>Another program forgot the saved location.</source>
        <translation>別のプログラムが保存された位置を消去しました。</translation>
    </message>
    <message>
        <source>Another program saved this place.</source>
        <translation>別のプログラムがこの場所を保存しました。</translation>
    </message>
    <message>
        <source>Another program saved another place.</source>
        <translation>別のプログラムが別の場所を保存しました。</translation>
    </message>
    <message>
        <source>Found, but not saved yet.</source>
        <translation>見つかりましたが、まだ保存されていません。</translation>
    </message>
    <message>
        <source>Save this place?</source>
        <translation>この場所を保存しますか?</translation>
    </message>
    <message>
        <source>The place that you chose is not saved yet.</source>
        <translation>選択した場所はまだ保存されていません。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>location::PlaceCard</name>
    <message>
        <source>Choose a place to see its sunrise and sunset.</source>
        <translation>場所を選ぶと、日の出と日の入りが表示されます。</translation>
    </message>
    <message>
        <source>The sun does not rise or set there today, so it cannot begin or end a night.</source>
        <translation>そこでは今日は太陽が昇らないか沈まないため、夜の始まりや終わりを決められません。</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2 by this computer&apos;s clock</source>
        <translation>今日: 日の出 %1、日の入り %2 (このコンピューターの時計)</translation>
    </message>
    <message>
        <source>Today: sunrise %1, sunset %2</source>
        <translation>今日: 日の出 %1、日の入り %2</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>場所が選ばれていません</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>選んだ場所</translation>
    </message>
</context>
<context>
    <name>location::SaveBar</name>
    <message>
        <source>Fo&amp;rget location</source>
        <translation>位置を消去(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
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
        <translation>現在地を検出(&amp;F)</translation>
    </message>
    <message>
        <source>Finding your location</source>
        <translation>現在地を検出しています</translation>
    </message>
    <message>
        <source>The desktop does not give locations to programs now. Switch its location service on and try again, or choose a city.</source>
        <translation>デスクトップは今、プログラムに位置情報を渡していません。位置情報サービスを有効にしてもう一度試すか、都市を選んでください。</translation>
    </message>
    <message>
        <source>Finding your location… You can choose a city instead.</source>
        <translation>現在地を検出しています… 都市を選ぶこともできます。</translation>
    </message>
    <message>
        <source>Access to your location was refused. Allow it and try again, or choose a city.</source>
        <translation>位置情報へのアクセスが拒否されました。許可してもう一度試すか、都市を選んでください。</translation>
    </message>
    <message>
        <source>No location service answered. Try again, or choose a city.</source>
        <translation>位置情報サービスが応答しませんでした。もう一度試すか、都市を選んでください。</translation>
    </message>
    <message>
        <source>Stop &amp;finding</source>
        <translation>検出を中止(&amp;F)</translation>
    </message>
    <message>
        <source>Asking for your consent… You can choose a city instead.</source>
        <translation>許可を求めています… 都市を選ぶこともできます。</translation>
    </message>
</context>
</TS>
