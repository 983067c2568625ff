// SPDX-License-Identifier: MIT
#include "night/SolarLocation.h"

#include "platform/DamagedFile.h"
#include "platform/Desktop.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileReplacement.h"
#include "platform/PropertyList.h"
#include "platform/SmallFile.h"
#include "prefs/PreferenceStores.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cmath>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using platform::outcomeOf;
using platform::PreferenceDomain;
using platform::StoreFault;
using platform::StoreOutcome;

namespace {

constexpr QLatin1StringView
    kFileBelowHome("/Library/Application Support/Tamsel Clock/location.plist");
constexpr double kLargestLatitude = 90.0;
constexpr double kLargestLongitude = 180.0;

QString copyKey()
{
    return u"SolarLocation"_s;
}

std::optional<double> number(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}

/// Whether the file \p path, well-formed or not, may contain coordinates: it contains their keys,
/// or it is too large to be searched.
bool mayHoldLocation(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return false;
    const auto bytes = platform::readSmallFile(path);
    return !bytes || bytes->contains(copyKey().toLatin1()) || bytes->contains("latitude");
}

StoreOutcome remove(const QString &path)
{
    const bool isGone = ::unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT;
    return isGone ? StoreOutcome() : outcomeOf(errno, path);
}

QVariantMap dictionaryFrom(const SolarLocation &location)
{
    return {{u"latitude"_s, location.latitude}, {u"longitude"_s, location.longitude}};
}

} // namespace

bool SolarLocation::isValid() const
{
    return std::abs(latitude) <= kLargestLatitude && std::abs(longitude) <= kLargestLongitude;
}

std::optional<SolarLocation> locationFrom(const QVariantMap &dictionary)
{
    const auto latitude = number(dictionary.value(u"latitude"_s));
    const auto longitude = number(dictionary.value(u"longitude"_s));
    if (!latitude || !longitude)
        return std::nullopt;
    const SolarLocation location{*latitude, *longitude};
    return location.isValid() ? std::optional(location) : std::nullopt;
}

QString TamselSolarLocationPath()
{
    const passwd *user = ::getpwuid(::getuid());
    if (!user || !user->pw_dir || !*user->pw_dir)
        return {};
    return QFile::decodeName(user->pw_dir) + kFileBelowHome;
}

SolarLocationStore::SolarLocationStore(const platform::Desktop &desktop)
    : m_file(TamselSolarLocationPath()),
      m_suite(PreferenceStores(desktop.preferencesFolder, {}).suite),
      m_notifications(desktop.notifications)
{
}

std::optional<SolarLocation> SolarLocationStore::load() const
{
    return locationFrom(m_file.holdsDictionary() ? m_file.contents()
                                                 : m_suite.value(copyKey()).toMap());
}

StoreOutcome SolarLocationStore::save(const SolarLocation &location,
                                      std::chrono::milliseconds timeout) const
{
    if (m_file.path().isEmpty())
        return {StoreFault::Other, {}};
    const PreferenceDomain::WriteLock file(m_file, timeout);
    if (!file.outcome())
        return file.outcome();
    const PreferenceDomain::WriteLock suite(m_suite, timeout);
    if (suite.outcome().fault == StoreFault::Locked)
        return suite.outcome();
    const QVariantMap dictionary = dictionaryFrom(location);
    if (auto written = m_file.replaceFile(platform::PropertyList::toBinary(dictionary)); !written)
        return written;
    static_cast<void>(m_suite.setValue(copyKey(), dictionary));
    announce();
    return {};
}

StoreOutcome SolarLocationStore::forget(std::chrono::milliseconds timeout) const
{
    const StoreOutcome file = forgetFile();
    const StoreOutcome copy = forgetCopy(timeout);
    announce();
    return file ? copy : file;
}

/// Needs no lock: a concurrent save either fails or happens after this.
StoreOutcome SolarLocationStore::forgetFile() const
{
    if (m_file.path().isEmpty())
        return {StoreFault::Other, {}};
    const QString path = m_file.target().value_or(m_file.path());
    const StoreOutcome leftover = remove(platform::FileReplacement::newPath(path));
    const StoreOutcome file = remove(path);
    return file ? leftover : file;
}

/// Also removes a damaged suite file that may contain the location; the next write would have
/// renamed it.
StoreOutcome SolarLocationStore::forgetCopy(std::chrono::milliseconds timeout) const
{
    const QString path = m_suite.target().value_or(m_suite.path());
    StoreOutcome outcome;
    if (mayHoldLocation(path) || mayHoldLocation(platform::FileReplacement::newPath(path))) {
        const PreferenceDomain::WriteLock lock(m_suite, timeout);
        outcome = m_suite.setValue(copyKey(), QVariant());
    }
    const QStringList copies = platform::damagedCopies(path);
    for (const QString &copy : copies) {
        const StoreOutcome removed = mayHoldLocation(copy) ? remove(copy) : StoreOutcome();
        if (outcome)
            outcome = removed;
    }
    return outcome;
}

void SolarLocationStore::announce() const
{
    if (m_notifications)
        m_notifications->post(QString(kSolarLocationChanged));
}
