// SPDX-License-Identifier: MIT
#include "night/SolarLocation.h"

#include "platform/Desktop.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileLock.h"
#include "platform/FileReplacement.h"
#include "platform/PropertyList.h"
#include "prefs/PreferenceStores.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cmath>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

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

std::optional<SolarLocation> locationFrom(const QVariantMap &dictionary)
{
    const auto latitude = number(dictionary.value(u"latitude"_s));
    const auto longitude = number(dictionary.value(u"longitude"_s));
    if (!latitude || !longitude)
        return std::nullopt;
    const SolarLocation location{*latitude, *longitude};
    return location.isValid() ? std::optional(location) : std::nullopt;
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
    const QVariantMap values = m_file.contents();
    return locationFrom(values.isEmpty() ? m_suite.value(copyKey()).toMap() : values);
}

bool SolarLocationStore::save(const SolarLocation &location) const
{
    if (m_file.path().isEmpty() || !writeFile(location))
        return false;
    m_suite.setValue(copyKey(), dictionaryFrom(location));
    announce();
    return true;
}

bool SolarLocationStore::writeFile(const SolarLocation &location) const
{
    if (!platform::makePrivateFolder(QFileInfo(m_file.path()).absolutePath()))
        return false;
    const platform::FileLock lock = platform::FileLock::forReplacing(m_file.path());
    if (!lock.isHeld())
        return false;
    platform::FileReplacement replacement(m_file.path());
    return replacement.write(platform::PropertyList::toBinary(dictionaryFrom(location))) &&
           replacement.commit();
}

bool SolarLocationStore::forget() const
{
    const bool fileRemoved =
        ::unlink(QFile::encodeName(m_file.path()).constData()) == 0 || errno == ENOENT;
    const bool copyRemoved =
        !m_suite.value(copyKey()).isValid() || m_suite.setValue(copyKey(), QVariant());
    announce();
    return fileRemoved && copyRemoved;
}

void SolarLocationStore::announce() const
{
    if (m_notifications)
        m_notifications->post(QString(kSolarLocationChanged));
}
