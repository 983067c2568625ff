// SPDX-License-Identifier: MIT
#include "location/ServiceFinder.h"

#include "location/Look.h"
#include "night/TamselSolarTimes.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr int kProgressHeight = 4;

QString findText()
{
    return ServiceFinder::tr("&Find my location");
}

} // namespace

ServiceFinder::ServiceFinder(const platform::Clocks &clocks, QWidget *parent)
    : QWidget(parent), m_clocks(clocks), m_service(QString(kLocationDesktopId)),
      m_button(new QPushButton(findText(), this)), m_progress(new QProgressBar(this)),
      m_message(new QLabel(this))
{
    using platform::LocationService;
    m_button->setAutoDefault(false);
    m_button->setMinimumHeight(kControlHeight);
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(kProgressHeight);
    m_progress->setAccessibleName(tr("Finding your location"));
    m_progress->hide();
    m_message->setWordWrap(true);
    m_message->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(kControlSpacing);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_button, m_progress, m_message})
        layout->addWidget(widget);

    connect(m_button, &QPushButton::clicked, this, &ServiceFinder::toggle);
    connect(&m_service, &LocationService::updated, this, &ServiceFinder::consider);
    connect(
        &m_service, &LocationService::authorizationChanged, this,
        [this](platform::LocationAuthorization authorization) {
            if (authorization == platform::LocationAuthorization::Restricted)
                end(tr("The desktop does not give locations to programs now. Switch its location "
                       "service on and try again, or choose a city."));
            else
                m_message->setText(tr("Finding your location… You can choose a city instead."));
        });
    connect(&m_service, &LocationService::failed, this, [this](platform::LocationError error) {
        end(error == platform::LocationError::Denied
                ? tr("Access to your location was refused. Allow it and try again, or choose a "
                     "city.")
                : tr("No location service answered. Try again, or choose a city."));
    });
}

void ServiceFinder::toggle()
{
    if (m_service.isUpdating())
        cancel();
    else
        begin();
}

void ServiceFinder::begin()
{
    m_button->setText(tr("Stop &finding"));
    m_progress->setVisible(!platform::Appearance::shared().reducedMotion());
    m_message->setText(tr("Asking for your consent… You can choose a city instead."));
    m_message->show();
    m_service.startUpdating();
}

void ServiceFinder::cancel()
{
    m_service.stopUpdating();
    end({});
}

void ServiceFinder::end(const QString &text)
{
    m_button->setText(findText());
    m_progress->hide();
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    announce(m_message);
}

void ServiceFinder::consider(const platform::LocationFix &fix)
{
    if (!isUsableFix(fix, m_clocks.now()))
        return;
    m_service.stopUpdating();
    end({});
    Q_EMIT found({fix.latitude, fix.longitude});
}

} // namespace location
