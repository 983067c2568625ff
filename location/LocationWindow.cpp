// SPDX-License-Identifier: MIT
#include "location/LocationWindow.h"

#include "controls/OverlayScrollArea.h"
#include "location/CityChooser.h"
#include "location/CoordinateFields.h"
#include "location/ServiceFinder.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "platform/DistributedNotifications.h"
#include "platform/WindowPlacement.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr int kMargin = 24;
constexpr int kSpacing = 16;
constexpr int kButtonSpacing = 8;
constexpr int kButtonHeight = 30;
constexpr int kWidth = 440;
constexpr double kTitleSize = 20.0;
constexpr double kTextSize = 13.0;
constexpr std::chrono::milliseconds kNoWaiting(0);

} // namespace

LocationWindow::LocationWindow(const platform::Desktop &desktop, ZoneCities cities,
                               const QString &systemZone, QWidget *parent)
    : QDialog(parent, Qt::Window), m_desktop(desktop), m_cities(std::move(cities)),
      m_store(desktop), m_sun(desktop), m_card(new PlaceCard(this)),
      m_finder(new ServiceFinder(*desktop.clocks, this)),
      m_chooser(new CityChooser(m_cities, this)), m_coordinates(new CoordinateFields(this))
{
    setWindowTitle(u"Pelko Location"_s);
    setFont(platform::systemFont(kTextSize));
    layOut();
    connectWays();
    connect(&platform::Appearance::shared(), &platform::Appearance::changed, this,
            &LocationWindow::followAppearance);
    followAppearance();
    suggest(systemZone);
    if (desktop.notifications)
        desktop.notifications->observe(QString(kSolarLocationChanged), this,
                                       [this] { followStore(); });
    m_chooser->setFocus();
}

LocationWindow::~LocationWindow() = default;

void LocationWindow::layOut()
{
    QWidget *content = makeContent();
    m_footer = makeFooter();
    const int height = content->sizeHint().height() + m_footer->sizeHint().height();
    m_area = new OverlayScrollArea(*m_desktop.clocks, content, this);
    m_area->setWidgetResizable(true);
    m_area->setMinimumWidth(content->minimumSizeHint().width());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_footer);
    const QRectF frame(0, 0, kWidth, height);
    resize(platform::frameOnScreen(frame, height, screen()->availableGeometry()).toRect().size());
    content->installEventFilter(this);
    installEventFilter(this);
}

/// All but the footer, which keeps its buttons in sight on a small screen.
QWidget *LocationWindow::makeContent()
{
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(kMargin, kMargin, kMargin, 0);
    layout->setSpacing(kSpacing);
    layout->addWidget(makeIntroduction());
    layout->addWidget(m_card);
    layout->addWidget(m_finder);
    layout->addWidget(m_chooser, 1);
    layout->addWidget(m_coordinates);
    return content;
}

int LocationWindow::neededHeight() const
{
    return m_area->widget()->heightForWidth(width()) + m_footer->heightForWidth(width());
}

/// Makes room for a message, where the screen has some.
void LocationWindow::growToContent()
{
    const QRect frame =
        platform::frameOnScreen(geometry(), neededHeight(), screen()->availableGeometry()).toRect();
    if (frame.height() > height())
        setGeometry(frame);
}

/// The toolkit places a dialog above the middle: on a low screen with its title beyond the edge.
void LocationWindow::showEvent(QShowEvent *event)
{
    const QPoint before = pos();
    QDialog::showEvent(event);
    if (pos() == before)
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
    auto *title = new QLabel(u"Where does your sun rise?"_s);
    title->setFont(platform::systemFont(kTitleSize, QFont::DemiBold));
    auto *text = new QLabel(u"The clock needs your location to change to its night colours at "
                            u"sunset and back at sunrise. It stays on this computer."_s);
    text->setWordWrap(true);
    auto *layout = new QVBoxLayout(introduction);
    layout->setContentsMargins({});
    layout->setSpacing(kSpacing / 2);
    layout->addWidget(title);
    layout->addWidget(text);
    return introduction;
}

QWidget *LocationWindow::makeFooter()
{
    auto *footer = new QWidget(this);
    m_message = new QLabel;
    m_message->setWordWrap(true);
    m_forget = new QPushButton(u"Fo&rget location"_s);
    m_forget->setAutoDefault(false);
    auto *close = new QPushButton(u"&Close"_s);
    close->setAutoDefault(false);
    m_save = new QPushButton(u"&Save"_s);
    m_save->setDefault(true);
    for (QPushButton *button : {m_forget, close, m_save})
        button->setMinimumHeight(kButtonHeight);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kButtonSpacing);
    buttons->addWidget(m_forget);
    buttons->addStretch();
    buttons->addWidget(close);
    buttons->addWidget(m_save);
    auto *layout = new QVBoxLayout(footer);
    layout->setContentsMargins(kMargin, kSpacing, kMargin, kMargin);
    layout->setSpacing(kButtonSpacing);
    layout->addWidget(m_message);
    layout->addLayout(buttons);
    connect(m_forget, &QPushButton::clicked, this, &LocationWindow::forget);
    connect(close, &QPushButton::clicked, this, &LocationWindow::reject);
    connect(m_save, &QPushButton::clicked, this, &LocationWindow::save);
    return footer;
}

void LocationWindow::connectWays()
{
    connect(m_finder, &ServiceFinder::found, this, &LocationWindow::chooseFound);
    connect(m_chooser, &CityChooser::chosen, this, [this](const ZoneCity &city) {
        m_finder->cancel();
        chooseCity(city);
        m_area->reveal(m_chooser); // the arrow keys move in the list from the field above it
    });
    connect(m_chooser, &CityChooser::confirmed, m_save, qOverload<>(&QPushButton::setFocus));
    connect(m_coordinates, &CoordinateFields::edited, this,
            [this](const std::optional<SolarLocation> &location) {
                m_finder->cancel();
                m_chooser->setCity(std::nullopt);
                choose(location);
            });
}

/// Begins with the saved place, else with the city of the time zone.
void LocationWindow::suggest(const QString &systemZone)
{
    if (const auto saved = m_store.load()) {
        chooseFound(*saved);
        tell({});
    } else if (const auto city = m_cities.ofZone(systemZone)) {
        chooseCity(*city);
        tell(u"Suggested by your time zone; nothing is saved yet."_s);
    } else {
        choose(std::nullopt);
    }
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
    m_card->setPlace(placeOf(location));
    tell({});
    refreshButtons();
}

std::optional<Place> LocationWindow::placeOf(const std::optional<SolarLocation> &location)
{
    if (!location)
        return std::nullopt;
    m_sun.setLocation(location);
    const QDateTime now = m_desktop.clocks->now();
    const auto sunrise = m_sun.eventOnDate(u"sunrise"_s, now);
    const auto sunset = m_sun.eventOnDate(u"sunset"_s, now);
    Place place{m_cities.placeName(*location), *location, std::nullopt};
    if (sunrise && sunset) {
        place.daylight = DaylightHours{sunrise->time(), sunset->time()};
        place.hasOtherTime = !m_cities.keepsLocalTime(*location, *sunrise) ||
                             !m_cities.keepsLocalTime(*location, *sunset);
    }
    return place;
}

void LocationWindow::save()
{
    if (!m_choice)
        return;
    write([this, location = *m_choice] { return m_store.save(location, kNoWaiting); },
          u"Saved. Clocks that are running follow at once."_s);
}

void LocationWindow::forget()
{
    write([this] { return m_store.forget(kNoWaiting); },
          u"Forgotten. A clock that is running keeps its sun times until it ends."_s);
}

void LocationWindow::write(const platform::PatientWrite::Attempt &attempt, const QString &done)
{
    m_write.start(attempt, [this, done](const platform::StoreOutcome &outcome) {
        tell(outcome ? done : outcome.text() + u'.', !outcome);
        refreshButtons();
    });
}

void LocationWindow::refreshButtons()
{
    m_saved = m_store.load();
    m_forget->setEnabled(m_saved.has_value());
    m_save->setEnabled(m_choice && m_choice != m_saved);
}

/// Leaves the choice as it is.
void LocationWindow::followStore()
{
    const auto known = m_saved;
    refreshButtons();
    if (m_saved == known)
        return;
    if (!m_saved)
        tell(u"Another program forgot the saved location."_s);
    else if (m_saved == m_choice)
        tell(u"Another program saved this place."_s);
    else
        tell(u"Another program saved another place."_s);
}

void LocationWindow::tell(const QString &text, bool isFault)
{
    const auto &appearance = platform::Appearance::shared();
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText,
                    isFault ? appearance.systemRedColor() : appearance.secondaryLabelColor());
    m_message->setPalette(colors);
    m_message->setText(text);
    QAccessibleEvent event(m_message, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void LocationWindow::followAppearance()
{
    setPalette(platform::Appearance::shared().palette());
    m_card->followAppearance();
    m_coordinates->followAppearance();
    tell(m_message->text());
}

/// Another program may have saved meanwhile without a bus to tell of it, and another day may have
/// begun.
void LocationWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_card->setPlace(placeOf(m_choice));
        followStore();
    }
}

} // namespace location
