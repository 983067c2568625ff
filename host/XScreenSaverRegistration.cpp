// SPDX-License-Identifier: MIT
#include "host/XScreenSaverRegistration.h"

#include "platform/FileReplacement.h"
#include "platform/SmallFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr auto kContinued = "\\\n";
constexpr auto kEntryEnd = "\\n"; // a backslash and the letter
constexpr auto kIndent = "\t\t\t\t";
constexpr auto kProgramName = "tamsel-clock";

/// The resources of the file, each with its continuation lines; joined they are the file.
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

/// The place of the resource \p key in \p lines, -1 when there is none. The last one counts.
qsizetype indexOfResource(const QList<QByteArray> &lines, const char *key)
{
    for (qsizetype i = lines.size() - 1; i >= 0; --i) {
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

/// The resource "programs", taken apart; the pieces joined are the resource.
struct ProgramList
{
    QByteArray head;           ///< the key and what stands before the first entry
    QList<QByteArray> entries; ///< each with the end mark and the line break that belong to it
    QByteArray tail;

    explicit ProgramList(const QByteArray &resource);
    QByteArray joined() const { return head + entries.join() + tail; }

    void append(const QByteArray &entry);
    void remove(qsizetype index);
};

ProgramList::ProgramList(const QByteArray &resource)
{
    qsizetype begin = afterBlanks(resource, resource.indexOf(':') + 1);
    if (resource.mid(begin).startsWith(kContinued))
        begin += qstrlen(kContinued);
    head = resource.left(begin);

    for (qsizetype i = begin; i < resource.size(); ++i) {
        if (resource.at(i) != '\\' || i + 1 == resource.size())
            continue;
        ++i; // what follows a backslash has no meaning of its own
        if (resource.at(i) != 'n')
            continue;
        if (resource.mid(i + 1).startsWith(kContinued))
            i += qstrlen(kContinued);
        entries.append(resource.mid(begin, i + 1 - begin));
        begin = i + 1;
    }
    tail = resource.mid(begin);
    // The last entry may lack its end mark.
    const bool isBlank = QByteArray(tail).replace(kContinued, " ").trimmed().isEmpty();
    if (!isBlank) {
        const qsizetype length = tail.endsWith('\n') ? tail.size() - 1 : tail.size();
        entries.append(tail.left(length));
        tail = tail.mid(length);
    }
}

/// The new entry ends its line in the way the last one did, and can be taken away again without a
/// trace.
void ProgramList::append(const QByteArray &entry)
{
    QByteArray &before = entries.isEmpty() ? head : entries.last();
    const bool isContinued = before.endsWith(kContinued);
    if (!entries.isEmpty() && !isContinued && !before.trimmed().endsWith(kEntryEnd))
        before.append(" ").append(kEntryEnd);
    if (!isContinued)
        before.append(kContinued);
    QByteArray line = kIndent + entry + '\t' + kEntryEnd;
    if (isContinued)
        line.append(kContinued);
    entries.append(line);
}

void ProgramList::remove(qsizetype index)
{
    const bool endsTheLine = index == entries.size() - 1 && !entries.at(index).endsWith(kContinued);
    entries.removeAt(index);
    QByteArray &before = index == 0 ? head : entries[index - 1];
    if (endsTheLine && before.endsWith(kContinued))
        before.chop(qstrlen(kContinued));
}

struct Span
{
    qsizetype begin;
    qsizetype length;
};

/// Where \p entry names the clock's program, if it does: after the mark of a saver that is not
/// picked at random, a visual's name and a quoted title.
std::optional<Span> clockProgram(const QByteArray &entry)
{
    static const QRegularExpression form(
        uR"(^B*-?B*(?:[\w-]+:)?B*(?:"[^"]*")?B*((?:'(?:[^']*/)?%1'|(?:[^\s']*/)?%1)(?=\s|\\|$)))"_s
            .replace(u'B', uR"((?:\s|\\\n))"_s)
            .replace(u"%1"_s, QLatin1StringView(kProgramName)));
    const auto match = form.match(QString::fromLatin1(entry));
    return match.hasMatch() ? std::optional(Span{match.capturedStart(1), match.capturedLength(1)})
                            : std::nullopt;
}

/// Lowers the number in the resource "selected" when it counts past entry \p index.
void followRemoval(QList<QByteArray> &lines, qsizetype index)
{
    const qsizetype at = indexOfResource(lines, "selected");
    if (at < 0)
        return;
    QByteArray &line = lines[at];
    const qsizetype begin = afterBlanks(line, line.indexOf(':') + 1);
    const QByteArray digits = line.mid(begin).trimmed();
    bool ok = false;
    const int selected = digits.toInt(&ok);
    if (ok && selected > index)
        line.replace(begin, digits.size(), QByteArray::number(selected - 1));
}

QByteArray newResource(const QByteArray &entry)
{
    ProgramList list("programs:\t\n"_ba);
    list.append(entry);
    return list.joined();
}

/// The running program by its bare name where XScreenSaver finds it under that.
QByteArray ownProgram()
{
    const QString path = QCoreApplication::applicationFilePath();
    const QString found = QStandardPaths::findExecutable(QLatin1StringView(kProgramName));
    const bool isFound =
        QFileInfo(found).canonicalFilePath() == QFileInfo(path).canonicalFilePath();
    return isFound ? QByteArray(kProgramName) : listedProgram(QFile::encodeName(path));
}

/// Replaces or removes the file at \p path. The reason when that failed.
QString replaceFile(const QString &path, const QByteArray &contents)
{
    const QFileInfo old(path);
    const bool existed = old.exists();
    const QFile::Permissions permissions = old.permissions();
    QString fault = u"cannot write %1"_s.arg(path);
    if (contents.isEmpty())
        return !existed || QFile::remove(path) ? QString() : fault;
    platform::FileReplacement replacement(path);
    if (!replacement.write(contents) || !replacement.commit())
        return fault;
    if (existed)
        QFile::setPermissions(path, permissions);
    return {};
}

} // namespace

QByteArray withClockListed(const QByteArray &file, const QByteArray &program)
{
    const QByteArray entry = "\"Tamsel Clock\"\t" + program + " --root";
    QList<QByteArray> lines = logicalLines(file);
    const qsizetype at = indexOfResource(lines, "programs");
    if (at < 0) {
        const bool isOpen = !file.isEmpty() && (!file.endsWith('\n') || file.endsWith(kContinued));
        return file + (isOpen ? "\n" : "") + newResource(entry);
    }
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
    const qsizetype at = indexOfResource(lines, "programs");
    if (at < 0)
        return file;
    ProgramList list(lines.at(at));
    const qsizetype before = list.entries.size();
    for (qsizetype i = before - 1; i >= 0; --i) {
        if (clockProgram(list.entries.at(i))) {
            list.remove(i);
            followRemoval(lines, i);
        }
    }
    // A list without any program would be no list of the user's.
    const bool becameEmpty = before > 0 && list.entries.isEmpty();
    lines[at] = becameEmpty ? QByteArray() : list.joined();
    return lines.join();
}

QByteArray listedProgram(const QByteArray &path)
{
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::strchr("/._+-", c) != nullptr;
    };
    if (std::all_of(path.begin(), path.end(), isPlain))
        return path;
    const bool canBeQuoted = !path.contains('\'') && !path.contains('\\') && !path.contains('\n');
    return canBeQuoted ? "'" + path + "'" : QByteArray();
}

QString registerWithXScreenSaver(Registration wanted)
{
    const QString listed = QDir::homePath() + "/.xscreensaver"_L1;
    const QFileInfo file(listed);
    const QString linked = file.exists() ? file.canonicalFilePath() : file.symLinkTarget();
    const QString path = linked.isEmpty() ? listed : linked;
    const auto text =
        QFileInfo::exists(path) ? platform::readSmallFile(path) : std::optional(QByteArray());
    if (!text)
        return u"cannot read %1"_s.arg(listed);
    QByteArray changed;
    if (wanted == Registration::Listed) {
        const QByteArray program = ownProgram();
        if (program.isEmpty()) {
            return u"XScreenSaver cannot run a program of that name: %1"_s.arg(
                QCoreApplication::applicationFilePath());
        }
        changed = withClockListed(*text, program);
    } else {
        changed = withClockUnlisted(*text);
    }
    return changed == *text ? QString() : replaceFile(path, changed);
}

} // namespace host
