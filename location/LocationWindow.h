// SPDX-License-Identifier: MIT
#pragma once

#include "location/ZoneCities.h"
#include "night/SolarLocation.h"
#include "night/TamselSolarTimes.h"
#include "platform/Desktop.h"
#include "platform/PatientWrite.h"

#include <QDialog>

#include <optional>

class OverlayScrollArea;

namespace location {

class CityChooser;
class CoordinateFields;
class PlaceCard;
class SaveBar;
class ServiceFinder;

/// The window that chooses, saves and forgets the place whose sun the clock follows. A place comes
/// from the location service, a list of cities or typed coordinates; the one used last takes
/// effect.
class LocationWindow : public QDialog
{
    Q_OBJECT

public:
    /// \p systemZone, the time zone of this computer, suggests a place when none is saved. The
    /// objects that \p desktop points to must outlive the window.
    LocationWindow(const platform::Desktop &desktop, ZoneCities cities, const QString &systemZone,
                   QWidget *parent = nullptr);

    /// The place that Save would save.
    const std::optional<SolarLocation> &choice() const { return m_choice; }

    /// Ends the window; first asks what to do with a place that the user chose and did not save.
    void reject() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeIntroduction();
    void layOut();
    void styleControls();
    QWidget *makeContent();
    void growToContent();
    void suggest(const QString &systemZone);
    void connectParts();

    void choose(const std::optional<SolarLocation> &location);
    void chooseCity(const ZoneCity &city);
    void chooseFound(const SolarLocation &location);
    void showPlace();

    void save();
    void forget();
    /// Runs \p attempt, then shows \p done or the reason for its failure.
    void write(const platform::PatientWrite::Attempt &attempt, const QString &done);
    void refreshButtons();
    void followStore();
    void followAppearance();

    platform::Desktop m_desktop;
    ZoneCities m_cities;
    SolarLocationStore m_store;
    /// A save or a removal that may still wait for a lock.
    platform::PatientWrite m_write;
    /// For the sun times of the choice; not persistent.
    TamselSolarTimes m_sun;
    std::optional<SolarLocation> m_choice;
    /// The saved place when it was last read.
    std::optional<SolarLocation> m_saved;
    /// The choice is the user's, neither a suggestion nor one that was to be forgotten.
    bool m_isOwnChoice = false;
    bool m_endsWhenSaved = false;
    PlaceCard *m_card;
    ServiceFinder *m_finder;
    CityChooser *m_chooser;
    CoordinateFields *m_coordinates;
    SaveBar *m_saveBar;
    OverlayScrollArea *m_area = nullptr;
};

} // namespace location
