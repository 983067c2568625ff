// SPDX-License-Identifier: MIT
#include "host/CommandLine.h"

#include <QCommandLineParser>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host {

using platform::Console;

namespace {

constexpr int kLargestSide = 16384; // in device pixels
constexpr double kLargestScale = 8.0;
constexpr double kMostIdleMinutes = 24 * 60;

/// How many arguments without a name belong to an option.
struct Operands
{
    qsizetype least = 0;
    qsizetype most = 0;
};

struct Option
{
    QString name;
    const char *description; ///< to be translated
    QString valueName = {};  ///< null for a switch
    /// The mode that the option asks for.
    std::optional<Mode> mode = {};
    Operands operands = {};
};

const QList<Option> &allOptions()
{
    static const QList<Option> options{
        {u"root"_s,
         QT_TRANSLATE_NOOP(
             "Console", "Draw into the window that XSCREENSAVER_WINDOW names, or the root window."),
         {},
         Mode::HostWindow},
        {u"window-id"_s,
         QT_TRANSLATE_NOOP("Console", "Draw into the window ID as a settings thumbnail."), u"ID"_s,
         Mode::HostWindow},
        {u"window"_s,
         QT_TRANSLATE_NOOP("Console", "Show the clock in an ordinary window."),
         {},
         Mode::Window},
        {u"size"_s, QT_TRANSLATE_NOOP("Console", "Size of the window or picture in points."),
         u"WxH"_s},
        {u"snapshot"_s,
         QT_TRANSLATE_NOOP("Console", "Write one frame to FILE as a PNG; needs no display."),
         u"FILE"_s, Mode::Snapshot},
        {u"scale"_s, QT_TRANSLATE_NOOP("Console", "Device pixels per point of the picture."),
         u"N"_s},
        {u"at"_s,
         QT_TRANSLATE_NOOP("Console", "Local time of the picture, as 2026-03-14T22:08:30.5."),
         u"TIME"_s},
        {u"preview"_s, QT_TRANSLATE_NOOP("Console", "Draw the picture as a settings thumbnail.")},
        {u"idle"_s,
         QT_TRANSLATE_NOOP(
             "Console",
             "Wait, and show the clock when the user is idle for [MINUTES], else for 4."),
         {},
         Mode::Idle,
         {0, 1}},
        {u"idle-at-login"_s,
         QT_TRANSLATE_NOOP("Console",
                           "Let each session start with that waiting, \"on\" or \"off\"."),
         u"on|off"_s, Mode::IdleAtLogin},
        {u"register-xscreensaver"_s,
         QT_TRANSLATE_NOOP("Console", "Enter the clock in the list of savers in ~/.xscreensaver."),
         {},
         Mode::Register},
        {u"unregister-xscreensaver"_s,
         QT_TRANSLATE_NOOP("Console", "Take the clock out of that list."),
         {},
         Mode::Unregister},
        {u"configure"_s,
         QT_TRANSLATE_NOOP("Console",
                           "Show the options; ends with 0 after OK, with 3 after Cancel."),
         {},
         Mode::Configure},
        {u"get"_s,
         QT_TRANSLATE_NOOP("Console", "Print the setting [KEY], or all with their keys."),
         {},
         Mode::Get,
         {0, 1}},
        {u"set"_s,
         QT_TRANSLATE_NOOP("Console", "Store a setting: KEY VALUE."),
         {},
         Mode::Set,
         {2, 2}},
        {u"sheet-snapshot"_s,
         QT_TRANSLATE_NOOP("Console",
                           "Write the options sheet to FILE as a PNG; needs no display."),
         u"FILE"_s, Mode::SheetSnapshot},
        {u"dark"_s, QT_TRANSLATE_NOOP("Console", "Draw the options sheet in its dark appearance.")},
        {u"help"_s, QT_TRANSLATE_NOOP("Console", "Print this help."), {}, Mode::Help},
        {u"version"_s, QT_TRANSLATE_NOOP("Console", "Print the version."), {}, Mode::Version},
    };
    return options;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const Option &option : allOptions())
        parser.addOption({option.name, Console::tr(option.description), option.valueName});
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

/// Reads positive numbers up to \p largest.
auto positiveNumberUpTo(double largest)
{
    return [largest](const QString &text) {
        bool ok = false;
        const double number = text.toDouble(&ok);
        return ok && number > 0.0 && number <= largest ? std::optional(number) : std::nullopt;
    };
}

std::optional<QDateTime> localTimeFrom(const QString &text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return time.isValid() && time.timeSpec() == Qt::LocalTime ? std::optional(time) : std::nullopt;
}

std::optional<bool> switchFrom(const QString &text)
{
    return text == "on"_L1 || text == "off"_L1 ? std::optional(text == "on"_L1) : std::nullopt;
}

std::optional<QString> fileFrom(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

/// Stores in \p target what \p text, given for the option \p name, means to \p read. A text that it
/// rejects is reported in \p error.
template <typename Read, typename Target>
void takeText(const QString &text, const QString &name, Read read, Target &target, QString &error)
{
    if (const auto value = read(text))
        target = *value;
    else
        error = Console::tr("bad value for --%1: '%2'").arg(name, text);
}

/// The same for the value of an option that may be given.
template <typename Read, typename Target>
void take(const QCommandLineParser &parser, const QString &name, Read read, Target &target,
          QString &error)
{
    if (parser.isSet(name) && error.isEmpty())
        takeText(parser.value(name), name, read, target, error);
}

/// An error text when an option of \p dependent is given without any of \p wanted, else null.
QString missingCompanion(const QCommandLineParser &parser, const QStringList &dependent,
                         const QStringList &wanted)
{
    const auto isSet = [&](const QString &name) { return parser.isSet(name); };
    if (std::ranges::any_of(wanted, isSet))
        return {};
    const auto alone = std::ranges::find_if(dependent, isSet);
    return alone == dependent.end()
               ? QString()
               : Console::tr("--%1 needs --%2").arg(*alone, wanted.join(Console::tr(" or --")));
}

/// An error text when two options ask for different modes, else null.
QString conflict(const QCommandLineParser &parser)
{
    const Option *first = nullptr;
    for (const Option &option : allOptions()) {
        if (!option.mode || !parser.isSet(option.name))
            continue;
        if (first && first->mode != option.mode)
            return Console::tr("--%1 and --%2 exclude each other").arg(first->name, option.name);
        first = &option;
    }
    return {};
}

/// The option that asks for a mode; null when none does.
const Option *modeOption(const QCommandLineParser &parser)
{
    for (const Option &option : allOptions()) {
        if (option.mode && parser.isSet(option.name))
            return &option;
    }
    return nullptr;
}

/// Writes "--idle=5" as "--idle 5": the parser knows no option whose value may be left out.
QStringList withOperandsApart(QStringList arguments)
{
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const qsizetype dashes = arguments[i].startsWith("--"_L1) ? 2 : 1;
        const qsizetype equals = arguments[i].indexOf(u'=');
        for (const Option &option : allOptions()) {
            if (option.operands.most == 0 || equals < 0 || !arguments[i].startsWith(u'-') ||
                arguments[i].mid(dashes, equals - dashes) != option.name)
                continue;
            arguments.insert(i + 1, arguments[i].mid(equals + 1));
            arguments[i].truncate(equals);
            break;
        }
    }
    return arguments;
}

/// An error text when there are too many or too few arguments without a name, else null.
QString operandsFault(const QCommandLineParser &parser)
{
    const QStringList given = parser.positionalArguments();
    const Option *option = modeOption(parser);
    const Operands wanted = option ? option->operands : Operands();
    if (given.size() > wanted.most)
        return Console::tr("unexpected argument '%1'").arg(given[wanted.most]);
    return given.size() < wanted.least ? Console::tr("--%1 needs KEY and VALUE").arg(option->name)
                                       : QString();
}

/// Qt's error text as one line without a capital and a final full stop.
QString oneLine(QString text)
{
    text.replace(u'\n', u' ');
    while (text.endsWith(u'.') || text.endsWith(u'。'))
        text.chop(1);
    return text.isEmpty() ? text : text.at(0).toLower() + text.mid(1);
}

QString usageFault(const QCommandLineParser &parser)
{
    if (QString error = conflict(parser); !error.isEmpty())
        return error;
    if (QString error = operandsFault(parser); !error.isEmpty())
        return error;
    const std::pair<QStringList, QStringList> companions[] = {
        {{u"at"_s, u"preview"_s}, {u"snapshot"_s}},
        {{u"scale"_s}, {u"snapshot"_s, u"sheet-snapshot"_s}},
        {{u"dark"_s}, {u"sheet-snapshot"_s}},
        {{u"size"_s}, {u"window"_s, u"snapshot"_s}},
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
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(withOperandsApart(arguments)))
        return UsageError{oneLine(parser.errorText())};

    Options options;
    if (parser.isSet(u"help"_s) || parser.isSet(u"version"_s)) {
        options.mode = parser.isSet(u"help"_s) ? Mode::Help : Mode::Version;
        return options;
    }
    QString error = usageFault(parser);
    options.hostWindow = windowIdFrom(namedWindow);
    take(parser, u"window-id"_s, windowIdFrom, options.hostWindow, error);
    take(parser, u"size"_s, sizeFrom, options.size, error);
    take(parser, u"scale"_s, positiveNumberUpTo(kLargestScale), options.scale, error);
    take(parser, u"idle-at-login"_s, switchFrom, options.idleAtLogin, error);
    take(parser, u"at"_s, localTimeFrom, options.at, error);
    for (const QString &name : {u"snapshot"_s, u"sheet-snapshot"_s})
        take(parser, name, fileFrom, options.pictureFile, error);
    const QStringList operands = parser.positionalArguments();
    const Option *option = modeOption(parser);
    if (error.isEmpty() && option && option->mode == Mode::Idle && !operands.isEmpty())
        takeText(operands.first(), option->name, positiveNumberUpTo(kMostIdleMinutes),
                 options.idleMinutes, error);
    options.settingName = operands.value(0);
    options.settingText = operands.value(1);
    const double longSide = std::max(options.size.width(), options.size.height());
    if (error.isEmpty() && longSide * options.scale > kLargestSide)
        error = Console::tr("a picture of that --size and --scale is larger than %1 pixels")
                    .arg(kLargestSide);
    if (!error.isEmpty())
        return UsageError{error};

    options.mode = option               ? *option->mode
                   : options.hostWindow ? Mode::HostWindow
                                        : Mode::FullScreen;
    options.dark = parser.isSet(u"dark"_s);
    options.preview = parser.isSet(u"preview"_s) || parser.isSet(u"window-id"_s);
    return options;
}

QString helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(
        Console::tr("One large, flat wall clock that fills an idle screen. Without an option it "
                    "covers every\nscreen and ends on a key, a button or a movement of the "
                    "pointer."));
    return parser.helpText();
}

} // namespace host
