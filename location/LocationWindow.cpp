// SPDX-License-Identifier: MIT
#include "location/LocationWindow.h"

#include "controls/Alert.h"
#include "controls/ControlFont.h"
#include "controls/OverlayScrollArea.h"
#include "controls/ViewAppearance.h"
#include "location/CityChooser.h"
#include "location/ControlStyle.h"
#include "location/CoordinateFields.h"
#include "location/Look.h"
#include "location/PlaceCard.h"
#include "location/SaveBar.h"
#include "location/ServiceFinder.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "platform/DistributedNotifications.h"
#include "platform/WindowPlacement.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr int kWidth = 440;
constexpr double kTitleSize = 20.0;
constexpr std::chrono::milliseconds kNoWaiting(0);

} // namespace

LocationWindow::LocationWindow(const platform::Desktop &desktop, ZoneCities cities,
                               const QString &systemZone, QWidget *parent)
    : QDialog(parent, Qt::Window), m_desktop(desktop), m_cities(std::move(cities)),
      m_store(desktop), m_sun(desktop), m_card(new PlaceCard(this)),
      m_finder(new ServiceFinder(*desktop.clocks, this)),
      m_chooser(new CityChooser(m_cities, this)), m_coordinates(new CoordinateFields(this)),
      m_saveBar(new SaveBar(this))
{
    setWindowTitle(u"Pelko Location"_s);
    setFont(controlFont());
    layOut();
    styleControls();
    connectParts();
    connect(&platform::Appearance::shared(), &platform::Appearance::changed, this,
            &LocationWindow::followAppearance);
    followAppearance();
    suggest(systemZone);
    if (desktop.notifications)
        desktop.notifications->observe(QString(kSolarLocationChanged), this,
                                       [this] { followStore(); });
    m_chooser->setFocus();
}

void LocationWindow::layOut()
{
    QWidget *content = makeContent();
    const int height = content->sizeHint().height() + m_saveBar->sizeHint().height();
    m_area = new OverlayScrollArea(*m_desktop.clocks, content, this);
    m_area->setWidgetResizable(true);
    m_area->setMinimumWidth(content->minimumSizeHint().width());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_saveBar);
    const QRectF frame(0, 0, kWidth, height);
    resize(platform::frameOnScreen(frame, height, screen()->availableGeometry()).toRect().size());
    content->installEventFilter(this);
    installEventFilter(this);
}

void LocationWindow::styleControls()
{
    auto *style = new ControlStyle;
    style->setParent(this);
    for (QWidget *control : findChildren<QWidget *>())
        if (qobject_cast<QLineEdit *>(control) || qobject_cast<QListWidget *>(control) ||
            qobject_cast<QPushButton *>(control))
            control->setStyle(style);
}

/// All but the save bar, whose buttons stay in sight on a small screen.
QWidget *LocationWindow::makeContent()
{
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(kWindowMargin, kWindowMargin, kWindowMargin, 0);
    layout->setSpacing(kSectionSpacing);
    layout->addWidget(makeIntroduction());
    layout->addWidget(m_card);
    layout->addWidget(m_finder);
    layout->addWidget(m_chooser);
    layout->addWidget(m_coordinates);
    layout->addStretch();
    return content;
}

/// Enlarges the window for a message as far as the screen allows.
void LocationWindow::growToContent()
{
    // The bar has no height for a width while it says nothing.
    const int bar = std::max(m_saveBar->heightForWidth(width()), m_saveBar->sizeHint().height());
    const int needed = m_area->widget()->heightForWidth(width()) + bar;
    const QRect frame =
        platform::frameOnScreen(geometry(), needed, screen()->availableGeometry()).toRect();
    if (frame.height() > height())
        setGeometry(frame);
}

/// The toolkit places a dialog above the middle: on a low screen with its title beyond the edge.
void LocationWindow::showEvent(QShowEvent *event)
{
    const QPoint before = pos();
    QDialog::showEvent(event);
    const bool isPlaced = pos() == before;
    growToContent();
    if (isPlaced)
        return;
    QRect frame = geometry();
    frame.moveCenter(screen()->availableGeometry().center());
    move(frame.topLeft());
}

bool LocationWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && isVisible())
        growToContent();
    return QDialog::eventFilter(watched, event);
}

QWidget *LocationWindow::makeIntroduction()
{
    auto *introduction = new QWidget(this);
    auto *title = new QLabel(tr("Where does your sun rise?"));
    title->setFont(platform::systemFont(kTitleSize, QFont::DemiBold));
    auto *text = new QLabel(tr("The clock needs your location to change to its night colours at "
                               "sunset and back at sunrise. It stays on this computer."));
    text->setWordWrap(true);
    auto *layout = new QVBoxLayout(introduction);
    layout->setContentsMargins({});
    layout->setSpacing(kSectionSpacing / 2);
    layout->addWidget(title);
    layout->addWidget(text);
    return introduction;
}

void LocationWindow::connectParts()
{
    connect(m_finder, &ServiceFinder::found, this, [this](const SolarLocation &location) {
        chooseFound(location);
        if (m_choice != m_saved)
            m_saveBar->tell(tr("Found, but not saved yet."));
    });
    connect(m_chooser, &CityChooser::chosen, this, [this](const ZoneCity &city) {
        m_finder->cancel();
        chooseCity(city);
        m_area->reveal(m_chooser); // the arrow keys move in the list from the field above it
    });
    connect(m_chooser, &CityChooser::confirmed, m_saveBar->saveButton(),
            qOverload<>(&QPushButton::setFocus));
    connect(m_coordinates, &CoordinateFields::edited, this,
            [this](const std::optional<SolarLocation> &location) {
                m_finder->cancel();
                m_chooser->setCity(std::nullopt);
                choose(location);
            });
    connect(m_saveBar->forgetButton(), &QPushButton::clicked, this, &LocationWindow::forget);
    connect(m_saveBar->closeButton(), &QPushButton::clicked, this, &LocationWindow::reject);
    connect(m_saveBar->saveButton(), &QPushButton::clicked, this, &LocationWindow::save);
}

/// Chooses the saved place, else the city of the time zone.
void LocationWindow::suggest(const QString &systemZone)
{
    if (const auto saved = m_store.load()) {
        chooseFound(*saved);
        m_saveBar->tell({});
    } else if (const auto city = m_cities.ofZone(systemZone)) {
        chooseCity(*city);
        m_saveBar->tell(tr("Suggested by your time zone; nothing is saved yet."));
    } else {
        choose(std::nullopt);
    }
    m_isOwnChoice = false;
}

void LocationWindow::chooseCity(const ZoneCity &city)
{
    m_chooser->setCity(city);
    m_coordinates->setLocation(city.location);
    choose(city.location);
}

void LocationWindow::chooseFound(const SolarLocation &location)
{
    const auto city = m_cities.nearestTo(location);
    m_chooser->setCity(city && city->location == location ? city : std::nullopt);
    m_coordinates->setLocation(location);
    choose(location);
}

void LocationWindow::choose(const std::optional<SolarLocation> &location)
{
    m_choice = location;
    m_isOwnChoice = true;
    showPlace();
    m_saveBar->tell({});
    refreshButtons();
}

void LocationWindow::showPlace()
{
    if (m_choice)
        m_card->setPlace(placeAt(*m_choice, m_cities, m_sun, m_desktop.clocks->now()));
    else
        m_card->setPlace(std::nullopt);
}

void LocationWindow::save()
{
    if (!m_choice)
        return;
    write([this, location = *m_choice] { return m_store.save(location, kNoWaiting); },
          tr("Saved. Clocks that are running follow at once."));
}

void LocationWindow::reject()
{
    if (!m_isOwnChoice || !m_choice || m_choice == m_store.load()) {
        QDialog::reject();
        return;
    }
    auto *question =
        new Alert(tr("Save this place?"), tr("The place that you chose is not saved yet."), this);
    question->addButton(tr("Save"), [this] {
        m_endsWhenSaved = true;
        save();
    });
    question->addButton(tr("Don't save"), [this] { QDialog::reject(); });
    question->addButton(tr("Cancel"));
    question->present();
}

void LocationWindow::forget()
{
    m_isOwnChoice = false;
    write([this] { return m_store.forget(kNoWaiting); },
          tr("Forgotten. A clock that is running keeps its sun times until it ends."));
}

void LocationWindow::write(const platform::PatientWrite::Attempt &attempt, const QString &done)
{
    m_write.start(attempt, [this, done](const platform::StoreOutcome &outcome) {
        const bool ends = std::exchange(m_endsWhenSaved, false);
        if (outcome && ends)
            QDialog::reject();
        else if (outcome)
            m_saveBar->tell(done);
        else
            m_saveBar->tell(outcome.text() + u'.', SaveBar::Tone::Fault);
        refreshButtons();
    });
}

void LocationWindow::refreshButtons()
{
    m_saved = m_store.load();
    m_saveBar->forgetButton()->setEnabled(m_saved.has_value());
    m_saveBar->saveButton()->setEnabled(m_choice && m_choice != m_saved);
}

/// After a change of the saved place by another program; the choice stays.
void LocationWindow::followStore()
{
    const auto known = m_saved;
    refreshButtons();
    if (m_saved == known)
        return;
    if (!m_saved)
        m_saveBar->tell(tr("Another program forgot the saved location."));
    else if (m_saved == m_choice)
        m_saveBar->tell(tr("Another program saved this place."));
    else
        m_saveBar->tell(tr("Another program saved another place."));
}

void LocationWindow::followAppearance()
{
    applyPalette(this);
    m_coordinates->followAppearance();
    m_saveBar->followAppearance();
}

/// Without a bus nobody reports what another program saved, and the date may have changed.
void LocationWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        showPlace();
        followStore();
    }
}

} // namespace location
