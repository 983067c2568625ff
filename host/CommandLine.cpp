// SPDX-License-Identifier: MIT
#include "host/CommandLine.h"

#include <QCommandLineParser>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr int kLargestSide = 16384; // in device pixels
constexpr double kLargestScale = 8.0;
constexpr double kMostIdleMinutes = 24 * 60;

/// The program's options by name; one table for parsing and for the help text.
struct OptionNames
{
    QString root = u"root"_s;
    QString windowId = u"window-id"_s;
    QString window = u"window"_s;
    QString size = u"size"_s;
    QString snapshot = u"snapshot"_s;
    QString scale = u"scale"_s;
    QString at = u"at"_s;
    QString preview = u"preview"_s;
    QString idle = u"idle"_s;
    QString registering = u"register-xscreensaver"_s;
    QString unregistering = u"unregister-xscreensaver"_s;
    QString configure = u"configure"_s;
    QString sheetSnapshot = u"sheet-snapshot"_s;
    QString dark = u"dark"_s;
    QString help = u"help"_s;
    QString version = u"version"_s;
};

const OptionNames &names()
{
    static const OptionNames table;
    return table;
}

void addOptions(QCommandLineParser &parser)
{
    const OptionNames &n = names();
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({
        {n.root, u"Draw into the window that XSCREENSAVER_WINDOW names, or the root window."_s},
        {n.windowId, u"Draw into the window ID as a settings thumbnail."_s, u"ID"_s},
        {n.window, u"Show the clock in an ordinary window."_s},
        {n.size, u"Size of the window or picture in points."_s, u"WxH"_s},
        {n.snapshot, u"Write one frame to FILE as a PNG; needs no display."_s, u"FILE"_s},
        {n.scale, u"Device pixels per point of the picture."_s, u"N"_s},
        {n.at, u"Local time of the picture, as 2026-03-14T22:08:30.5."_s, u"TIME"_s},
        {n.preview, u"Draw the picture as a settings thumbnail."_s},
        {n.idle, u"Wait, and show the clock when the user is idle for so long."_s, u"MINUTES"_s},
        {n.registering, u"Enter the clock in the list of savers in ~/.xscreensaver."_s},
        {n.unregistering, u"Take the clock out of that list."_s},
        {n.configure, u"Show the options; ends with 0 after OK, with 3 after Cancel."_s},
        {n.sheetSnapshot, u"Write the options sheet to FILE as a PNG; needs no display."_s,
         u"FILE"_s},
        {n.dark, u"Draw the options sheet in its dark appearance."_s},
        {n.help, u"Print this help."_s},
        {n.version, u"Print the version."_s},
    });
}

std::optional<quint32> windowIdFrom(const QString &text)
{
    const bool isHex = text.startsWith("0x"_L1, Qt::CaseInsensitive);
    const QString digits = isHex ? text.mid(2) : text;
    if (digits.isEmpty() || !digits.front().isLetterOrNumber())
        return std::nullopt;
    bool ok = false;
    const quint32 id = digits.toUInt(&ok, isHex ? 16 : 10);
    return ok ? std::optional(id) : std::nullopt;
}

std::optional<QSize> sizeFrom(const QString &text)
{
    static const QRegularExpression form(u"^([0-9]{1,5})x([0-9]{1,5})$"_s);
    const auto match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool fits = std::max(size.width(), size.height()) <= kLargestSide;
    return match.hasMatch() && !size.isEmpty() && fits ? std::optional(size) : std::nullopt;
}

std::optional<double> scaleFrom(const QString &text)
{
    bool ok = false;
    const double scale = text.toDouble(&ok);
    return ok && scale > 0.0 && scale <= kLargestScale ? std::optional(scale) : std::nullopt;
}

std::optional<double> idleMinutesFrom(const QString &text)
{
    bool ok = false;
    const double minutes = text.toDouble(&ok);
    return ok && minutes > 0.0 && minutes <= kMostIdleMinutes ? std::optional(minutes)
                                                              : std::nullopt;
}

std::optional<QDateTime> localTimeFrom(const QString &text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return time.isValid() && time.timeSpec() == Qt::LocalTime ? std::optional(time) : std::nullopt;
}

std::optional<QString> fileFrom(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

/// Takes an option's value through \p read; a value it refuses becomes \p error.
template <typename Read, typename Target>
void take(const QCommandLineParser &parser, const QString &name, Read read, Target &target,
          QString &error)
{
    if (!parser.isSet(name) || !error.isEmpty())
        return;
    const QString text = parser.value(name);
    if (const auto value = read(text))
        target = *value;
    else
        error = u"bad value for --%1: '%2'"_s.arg(name, text);
}

/// The first option of \p dependent that stands there without any of \p wanted, as an error text.
QString missingCompanion(const QCommandLineParser &parser, const QStringList &dependent,
                         const QStringList &wanted)
{
    const auto isSet = [&](const QString &name) { return parser.isSet(name); };
    if (std::any_of(wanted.begin(), wanted.end(), isSet))
        return {};
    const auto alone = std::find_if(dependent.begin(), dependent.end(), isSet);
    return alone == dependent.end() ? QString()
                                    : u"--%1 needs --%2"_s.arg(*alone, wanted.join(" or --"_L1));
}

/// The options that each stand for a way to run the program.
QList<std::pair<QString, Mode>> modes()
{
    const OptionNames &n = names();
    return {{n.snapshot, Mode::Snapshot},
            {n.window, Mode::Window},
            {n.configure, Mode::Configure},
            {n.sheetSnapshot, Mode::SheetSnapshot},
            {n.idle, Mode::Idle},
            {n.registering, Mode::Register},
            {n.unregistering, Mode::Unregister},
            {n.root, Mode::HostWindow},
            {n.windowId, Mode::HostWindow}};
}

/// Two of them that cannot stand together, as an error text.
QString conflict(const QCommandLineParser &parser)
{
    std::optional<std::pair<QString, Mode>> first;
    for (const auto &[name, mode] : modes()) {
        if (!parser.isSet(name))
            continue;
        if (first && first->second != mode)
            return u"--%1 and --%2 exclude each other"_s.arg(first->first, name);
        first = {name, mode};
    }
    return {};
}

Mode modeFrom(const QCommandLineParser &parser, bool windowIsNamed)
{
    for (const auto &[name, mode] : modes()) {
        if (parser.isSet(name))
            return mode;
    }
    return windowIsNamed ? Mode::HostWindow : Mode::FullScreen;
}

/// Qt's wording as one line in our form.
QString oneLine(QString text)
{
    text.replace(u'\n', u' ');
    while (text.endsWith(u'.'))
        text.chop(1);
    return text.isEmpty() ? text : text.at(0).toLower() + text.mid(1);
}

QString usageFault(const QCommandLineParser &parser)
{
    const OptionNames &n = names();
    if (!parser.positionalArguments().isEmpty())
        return u"unexpected argument '%1'"_s.arg(parser.positionalArguments().first());
    if (QString error = conflict(parser); !error.isEmpty())
        return error;
    const std::pair<QStringList, QStringList> companions[] = {
        {{n.at, n.preview}, {n.snapshot}},
        {{n.scale}, {n.snapshot, n.sheetSnapshot}},
        {{n.dark}, {n.sheetSnapshot}},
        {{n.size}, {n.window, n.snapshot}},
    };
    for (const auto &[dependent, wanted] : companions)
        if (QString error = missingCompanion(parser, dependent, wanted); !error.isEmpty())
            return error;
    return {};
}

} // namespace

std::variant<Options, UsageError> parseCommandLine(const QStringList &arguments,
                                                   const QString &namedWindow)
{
    const OptionNames &n = names();
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return UsageError{oneLine(parser.errorText())};

    Options options;
    if (parser.isSet(n.help) || parser.isSet(n.version)) {
        options.mode = parser.isSet(n.help) ? Mode::Help : Mode::Version;
        return options;
    }
    QString error = usageFault(parser);
    options.hostWindow = windowIdFrom(namedWindow);
    take(parser, n.windowId, windowIdFrom, options.hostWindow, error);
    take(parser, n.size, sizeFrom, options.size, error);
    take(parser, n.scale, scaleFrom, options.scale, error);
    take(parser, n.idle, idleMinutesFrom, options.idleMinutes, error);
    take(parser, n.at, localTimeFrom, options.at, error);
    for (const QString &name : {n.snapshot, n.sheetSnapshot})
        take(parser, name, fileFrom, options.pictureFile, error);
    const double longSide = std::max(options.size.width(), options.size.height());
    if (error.isEmpty() && longSide * options.scale > kLargestSide)
        error =
            u"a picture of that --size and --scale is larger than %1 pixels"_s.arg(kLargestSide);
    if (!error.isEmpty())
        return UsageError{error};

    options.mode = modeFrom(parser, options.hostWindow.has_value());
    options.dark = parser.isSet(n.dark);
    options.preview = parser.isSet(n.preview) || parser.isSet(n.windowId);
    return options;
}

QString helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(
        u"One large, flat wall clock that fills an idle screen. Without an option it covers every\n"
        "screen and ends on a key, a button or a movement of the pointer."_s);
    return parser.helpText();
}

} // namespace host
