// SPDX-License-Identifier: MIT
#include "host/XScreenSaverList.h"

#include "host/CommandLine.h"

#include <QList>
#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr auto kContinued = "\\\n";
constexpr auto kEntryEnd = "\\n"; // a backslash and the letter
constexpr auto kAddedEnd = " \\n\\\n";
constexpr auto kIndent = "\t\t\t\t";

/// Splits the file into resources, each with its continuation lines.
QList<QByteArray> logicalLines(const QByteArray &file)
{
    QList<QByteArray> lines;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < file.size(); ++i) {
        const bool ends = file.at(i) == '\n' && (i == 0 || file.at(i - 1) != '\\');
        if (ends || i == file.size() - 1) {
            lines.append(file.mid(begin, i + 1 - begin));
            begin = i + 1;
        }
    }
    return lines;
}

/// The index of the resource \p key among the first \p count of \p lines, -1 when there is none.
/// The last one takes effect.
qsizetype indexOfResource(const QList<QByteArray> &lines, const char *key, qsizetype count)
{
    for (qsizetype i = count - 1; i >= 0; --i) {
        const qsizetype colon = lines.at(i).indexOf(':');
        if (colon > 0 && lines.at(i).left(colon).trimmed().toLower() == key)
            return i;
    }
    return -1;
}

qsizetype afterBlanks(const QByteArray &text, qsizetype at)
{
    while (at < text.size() && (text.at(at) == ' ' || text.at(at) == '\t'))
        ++at;
    return at;
}

bool continuesAt(QByteArrayView text, qsizetype at)
{
    return text.sliced(at).startsWith(kContinued);
}

bool isBlank(const QByteArray &text)
{
    QByteArray rest = QByteArray(text).replace(kContinued, " ");
    if (rest.endsWith('\\'))
        rest.chop(1); // at the end of a file it escapes nothing
    return rest.trimmed().isEmpty();
}

/// The resource "programs", split into pieces without loss.
struct ProgramList
{
    QByteArray head;           ///< the key and what stands before the first entry
    QList<QByteArray> entries; ///< each with the end mark and the line break that belong to it
    QByteArray tail;
    bool isOpen = false; ///< the last entry has no end mark, which is allowed

    explicit ProgramList(const QByteArray &resource);
    QByteArray joined() const { return head + entries.join() + tail; }

    void append(const QByteArray &entry);
    void removeLast();
};

ProgramList::ProgramList(const QByteArray &resource)
{
    qsizetype begin = afterBlanks(resource, resource.indexOf(':') + 1);
    if (continuesAt(resource, begin))
        begin += qstrlen(kContinued);
    head = resource.left(begin);

    for (qsizetype i = begin; i < resource.size(); ++i) {
        if (resource.at(i) != '\\' || i + 1 == resource.size())
            continue;
        ++i; // skips the escaped character
        if (resource.at(i) != 'n')
            continue;
        if (continuesAt(resource, i + 1))
            i += qstrlen(kContinued);
        entries.append(resource.mid(begin, i + 1 - begin));
        begin = i + 1;
    }
    tail = resource.mid(begin);
    isOpen = !isBlank(tail);
    if (isOpen) {
        const qsizetype length = tail.endsWith('\n') ? tail.size() - 1 : tail.size();
        entries.append(tail.left(length));
        tail = tail.mid(length);
    }
}

/// The new entry ends as the last one did, from which removeLast() derives what to restore.
void ProgramList::append(const QByteArray &entry)
{
    QByteArray &before = entries.isEmpty() ? head : entries.last();
    const bool isContinued = !isOpen && before.endsWith(kContinued);
    if (isOpen)
        before.append(kAddedEnd);
    else if (!isContinued)
        before.append(kContinued);
    QByteArray line = kIndent + entry;
    if (!isOpen)
        line.append('\t').append(kEntryEnd);
    if (isContinued)
        line.append(kContinued);
    entries.append(line);
}

void ProgramList::removeLast()
{
    const bool endsTheLine = !entries.takeLast().endsWith(kContinued);
    QByteArray &before = entries.isEmpty() ? head : entries.last();
    isOpen = isOpen && !entries.isEmpty() && before.endsWith(kAddedEnd);
    if (isOpen)
        before.chop(qstrlen(kAddedEnd));
    else if (endsTheLine && before.endsWith(kContinued))
        before.chop(qstrlen(kContinued));
}

struct Span
{
    qsizetype begin;
    qsizetype length;
};

/// Where \p entry names the clock's program, if it does: after the mark of a disabled saver, a
/// visual's name and a quoted title, all optional. The form does not backtrack, so that matching
/// takes linear time.
std::optional<Span> clockProgram(const QByteArray &entry)
{
    static const QRegularExpression form(
        uR"(^B-?B(?:[\w-]++:)?+B(?:"[^"]*+")?+B((?:'(?:[^']*/)?%1'|(?:[^\s']*/)?%1)(?=\s|\\|$)))"_s
            .replace(u'B', uR"((?:\s|\\\n)*+)"_s)
            .replace(u"%1"_s, QLatin1StringView(kProgramName)));
    const auto match = form.match(QString::fromLatin1(entry));
    return match.hasMatch() ? std::optional(Span{match.capturedStart(1), match.capturedLength(1)})
                            : std::nullopt;
}

/// Lowers the index in the resource "selected" by the number of entries before it that are \p gone.
void followRemoval(QList<QByteArray> &lines, const QList<bool> &gone)
{
    const qsizetype at = indexOfResource(lines, "selected", lines.size());
    if (at < 0)
        return;
    QByteArray &line = lines[at];
    const qsizetype begin = afterBlanks(line, line.indexOf(':') + 1);
    const QByteArray digits = line.mid(begin).trimmed();
    bool ok = false;
    const int selected = digits.toInt(&ok);
    if (!ok || selected <= 0 || selected >= gone.size())
        return;
    const auto lower = std::count(gone.begin(), gone.begin() + selected, true);
    if (lower > 0)
        line.replace(begin, digits.size(), QByteArray::number(selected - lower));
}

/// Removes the clock from the list in \p lines \p at that index. Returns true when the whole list
/// was removed, because withClockListed() had created it.
bool removeClock(QList<QByteArray> &lines, qsizetype at)
{
    ProgramList list(lines.at(at));
    QList<bool> gone;
    for (const QByteArray &entry : std::as_const(list.entries))
        gone.append(clockProgram(entry).has_value());
    if (!gone.contains(true))
        return false;
    const bool wasMadeForClock = !list.head.endsWith(kContinued);
    while (!list.entries.isEmpty() && gone.at(list.entries.size() - 1))
        list.removeLast();
    QList<QByteArray> kept;
    for (qsizetype i = 0; i < list.entries.size(); ++i) {
        if (!gone.at(i))
            kept.append(list.entries.at(i));
    }
    list.entries = kept;
    const bool goes = wasMadeForClock && kept.isEmpty();
    lines[at] = goes ? QByteArray() : list.joined();
    if (!goes)
        followRemoval(lines, gone);
    return goes;
}

} // namespace

QByteArray withClockListed(const QByteArray &file, const QByteArray &program)
{
    const QByteArray entry = "\"Tamsel Clock\"\t" + program + " --root";
    QList<QByteArray> lines = logicalLines(file);
    const qsizetype at = indexOfResource(lines, "programs", lines.size());
    // A new resource is put first, where no unfinished continuation can precede it. In an empty
    // list of the user's the clock gets a continuation line, by which removeClock() tells the two
    // apart.
    if (at < 0)
        return "programs:\t" + entry + '\t' + kEntryEnd + '\n' + file;
    ProgramList list(lines.at(at));
    bool isListed = false;
    for (QByteArray &present : list.entries) {
        if (const auto span = clockProgram(present)) {
            present.replace(span->begin, span->length, program);
            isListed = true;
        }
    }
    if (!isListed)
        list.append(entry);
    lines[at] = list.joined();
    return lines.join();
}

QByteArray withClockUnlisted(const QByteArray &file)
{
    QList<QByteArray> lines = logicalLines(file);
    // When a whole list was removed, the one before it takes effect and is cleaned, too.
    qsizetype at = lines.size();
    do
        at = indexOfResource(lines, "programs", at);
    while (at >= 0 && removeClock(lines, at));
    return lines.join();
}

QByteArray listedProgram(const QByteArray &path)
{
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::strchr("/._+-", c) != nullptr;
    };
    if (std::ranges::all_of(path, isPlain))
        return path;
    const bool canBeQuoted = !path.contains('\'') && !path.contains('\\') && !path.contains('\n');
    return canBeQuoted ? "'" + path + "'" : QByteArray();
}

} // namespace host
