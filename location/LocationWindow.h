// SPDX-License-Identifier: MIT
#pragma once

#include "location/PlaceCard.h"
#include "location/ZoneCities.h"
#include "night/SolarLocation.h"
#include "night/TamselSolarTimes.h"
#include "platform/Desktop.h"
#include "platform/PatientWrite.h"

#include <QDialog>

#include <optional>

class OverlayScrollArea;
class QLabel;
class QPushButton;

namespace location {

class CityChooser;
class CoordinateFields;
class ServiceFinder;

/// The window that chooses, saves and forgets the place whose sun the clock follows. Three ways
/// lead to a place: the location service, a list of cities, and typed coordinates; whichever was
/// used last counts.
class LocationWindow : public QDialog
{
    Q_OBJECT

public:
    /// \p systemZone, the time zone of this computer, suggests a place when none is saved. The
    /// objects that \p desktop points to must outlive the window.
    LocationWindow(const platform::Desktop &desktop, ZoneCities cities, const QString &systemZone,
                   QWidget *parent = nullptr);
    ~LocationWindow() override;

    /// The place that Save would save.
    const std::optional<SolarLocation> &choice() const { return m_choice; }
    ServiceFinder &finder() { return *m_finder; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeIntroduction();
    QWidget *makeFooter();
    void layOut();
    QWidget *makeContent();
    int neededHeight() const;
    void growToContent();
    void suggest(const QString &systemZone);
    void connectWays();

    void choose(const std::optional<SolarLocation> &location);
    void chooseCity(const ZoneCity &city);
    void chooseFound(const SolarLocation &location);
    std::optional<Place> placeOf(const std::optional<SolarLocation> &location);

    void save();
    void forget();
    /// Carries out \p attempt and tells \p done, or why it could not be done.
    void write(const platform::PatientWrite::Attempt &attempt, const QString &done);
    void refreshButtons();
    void followStore();
    void tell(const QString &text, bool isFault = false);
    void followAppearance();

    platform::Desktop m_desktop;
    ZoneCities m_cities;
    SolarLocationStore m_store;
    /// Saves or forgets.
    platform::PatientWrite m_write;
    /// Computes the sun of the choice; loads and saves nothing.
    TamselSolarTimes m_sun;
    std::optional<SolarLocation> m_choice;
    /// What was saved when it was last looked at.
    std::optional<SolarLocation> m_saved;
    PlaceCard *m_card;
    ServiceFinder *m_finder;
    CityChooser *m_chooser;
    CoordinateFields *m_coordinates;
    OverlayScrollArea *m_area = nullptr;
    QWidget *m_footer = nullptr;
    QLabel *m_message = nullptr;
    QPushButton *m_forget = nullptr;
    QPushButton *m_save = nullptr;
};

} // namespace location
