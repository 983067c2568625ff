// SPDX-License-Identifier: MIT
#include "controls/ControlAccessibility.h"

#include "controls/Alert.h"
#include "controls/Popover.h"
#include "controls/PushButton.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSeparator.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselTimeMenu.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"

#include <QAccessibleWidget>
#include <QLineEdit>

namespace {

constexpr double kValueStep = 0.01;
constexpr int kSecondsPerMinute = 60;
constexpr int kLastMinute = 24 * 60 - 1;

/// Anything that is pressed or switched.
class AccessibleButton : public QAccessibleWidget
{
public:
    AccessibleButton(QAbstractButton *button, QAccessible::Role role)
        : QAccessibleWidget(button, role)
    {
    }

    QAbstractButton *button() const { return qobject_cast<QAbstractButton *>(object()); }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? button()->text() : text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = button()->isDown();
        if (button()->isCheckable()) {
            state.checkable = true;
            state.checked = button()->isChecked();
        }
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (button()->isEnabled())
            names.prepend(mainAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == mainAction())
            button()->click();
        else
            QAccessibleWidget::doAction(name);
    }

    QStringList keyBindingsForAction(const QString &) const override { return {}; }

protected:
    /// What a click does.
    virtual QString mainAction() const
    {
        return state().checkable ? toggleAction() : pressAction();
    }
};

class AccessibleMenuButton final : public AccessibleButton
{
public:
    explicit AccessibleMenuButton(TamselTimeMenu *menu)
        : AccessibleButton(menu, QAccessible::ButtonMenu)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
        state.hasPopup = true;
        return state;
    }

protected:
    QString mainAction() const override { return showMenuAction(); }
};

/// The popover that is open at \p anchor; null when there is none.
Popover *openPopover(const QWidget *anchor)
{
    const auto popovers = anchor->window()->findChildren<Popover *>(Qt::FindDirectChildrenOnly);
    for (Popover *popover : popovers) {
        if (popover->isVisible() && popover->anchor() == anchor)
            return popover;
    }
    return nullptr;
}

/// Popups are not among the windows of an application, so a popover is found in its anchor.
class AccessiblePopover final : public QAccessibleWidget
{
public:
    explicit AccessiblePopover(Popover *popover) : QAccessibleWidget(popover, QAccessible::Dialog)
    {
    }

    QAccessibleInterface *parent() const override
    {
        QWidget *anchor = qobject_cast<Popover *>(object())->anchor();
        return anchor ? QAccessible::queryAccessibleInterface(anchor) : nullptr;
    }
};

/// One of several colours to choose from, or the button that opens an editor for its own colour.
class AccessibleSwatch final : public AccessibleButton
{
public:
    explicit AccessibleSwatch(TamselSwatchButton *swatch)
        : AccessibleButton(swatch, QAccessible::Button)
    {
    }

    QAccessible::Role role() const override
    {
        return swatch()->isCheckable() ? QAccessible::RadioButton : QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
        if (swatch()->usesPickerSelection()) {
            state.hasPopup = true;
            state.expandable = true;
            state.expanded = swatch()->pickerActive();
            state.collapsed = !swatch()->pickerActive();
        }
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        const bool tellsColor = kind == QAccessible::Description || kind == QAccessible::Value;
        if (tellsColor && !swatch()->rainbow() && swatch()->swatchColor().isValid())
            return swatch()->swatchColor().name().toUpper();
        return AccessibleButton::text(kind);
    }

    int childCount() const override { return openPopover(swatch()) ? 1 : 0; }

    QAccessibleInterface *child(int index) const override
    {
        Popover *popover = index == 0 ? openPopover(swatch()) : nullptr;
        return popover ? QAccessible::queryAccessibleInterface(popover) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == openPopover(swatch()) ? 0 : -1;
    }

private:
    TamselSwatchButton *swatch() const { return qobject_cast<TamselSwatchButton *>(object()); }
};

class AccessibleSegment final : public AccessibleButton
{
public:
    AccessibleSegment(QAbstractButton *button, TamselModeControl *control)
        : AccessibleButton(button, QAccessible::RadioButton), m_control(control)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
        state.checkable = true;
        state.checked = isSelected();
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return isSelected() ? QStringLiteral("1") : QStringLiteral("0");
        return AccessibleButton::text(kind);
    }

private:
    bool isSelected() const
    {
        return m_control->buttons().indexOf(button()) == m_control->selectedSegment();
    }

    TamselModeControl *m_control;
};

class AccessibleSlider final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSlider(TamselGradientSlider *slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return slider()->doubleValue(); }
    void setCurrentValue(const QVariant &value) override { slider()->edit(value.toDouble()); }
    QVariant minimumValue() const override { return slider()->minValue(); }
    QVariant maximumValue() const override { return slider()->maxValue(); }
    QVariant minimumStepSize() const override { return kValueStep; }

private:
    TamselGradientSlider *slider() const { return qobject_cast<TamselGradientSlider *>(object()); }
};

/// The toolkit's own tells no value of a time and cannot change it. The text is that of the editor
/// inside.
class AccessibleTimePicker final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleTimePicker(TimePicker *picker)
        : QAccessibleWidget(picker, QAccessible::SpinBox)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        switch (type) {
        case QAccessible::ValueInterface:
            return static_cast<QAccessibleValueInterface *>(this);
        case QAccessible::TextInterface:
        case QAccessible::EditableTextInterface:
            return QAccessible::queryAccessibleInterface(picker()->findChild<QLineEdit *>())
                ->interface_cast(type);
        default:
            return QAccessibleWidget::interface_cast(type);
        }
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? picker()->text() : QAccessibleWidget::text(kind);
    }

    int childCount() const override { return 0; }

    /// In minutes after midnight.
    QVariant currentValue() const override
    {
        return QTime(0, 0).secsTo(picker()->time()) / kSecondsPerMinute;
    }
    void setCurrentValue(const QVariant &value) override
    {
        picker()->setTime(QTime(0, 0).addSecs(value.toInt() * kSecondsPerMinute));
    }
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return kLastMinute; }
    QVariant minimumStepSize() const override { return 1; }

private:
    TimePicker *picker() const { return qobject_cast<TimePicker *>(object()); }
};

QAccessibleInterface *makeButtonInterface(QObject *object)
{
    auto *button = qobject_cast<QAbstractButton *>(object);
    if (!button)
        return nullptr;
    if (auto *menu = qobject_cast<TamselTimeMenu *>(object))
        return new AccessibleMenuButton(menu);
    if (auto *swatch = qobject_cast<TamselSwatchButton *>(object))
        return new AccessibleSwatch(swatch);
    if (auto *control = qobject_cast<TamselModeControl *>(object->parent()))
        return new AccessibleSegment(button, control);
    if (qobject_cast<TamselToggle *>(object))
        return new AccessibleButton(button, QAccessible::CheckBox);
    if (qobject_cast<TamselSymbolButton *>(object) || qobject_cast<PushButton *>(object))
        return new AccessibleButton(button, QAccessible::Button);
    return nullptr;
}

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *button = makeButtonInterface(object))
        return button;
    if (auto *slider = qobject_cast<TamselGradientSlider *>(object))
        return new AccessibleSlider(slider);
    if (auto *picker = qobject_cast<TimePicker *>(object))
        return new AccessibleTimePicker(picker);
    if (auto *control = qobject_cast<TamselModeControl *>(object))
        return new QAccessibleWidget(control, QAccessible::Grouping);
    if (auto *separator = qobject_cast<TamselSeparator *>(object))
        return new QAccessibleWidget(separator, QAccessible::Separator);
    if (auto *popover = qobject_cast<Popover *>(object))
        return new AccessiblePopover(popover);
    if (auto *window = qobject_cast<TamselSettingsWindow *>(object))
        return new QAccessibleWidget(window, qobject_cast<Alert *>(window)
                                                 ? QAccessible::AlertMessage
                                                 : QAccessible::Dialog);
    if (auto *view = qobject_cast<TamselSettingsView *>(object); view && view->group())
        return new QAccessibleWidget(view, QAccessible::Grouping);
    return nullptr;
}

void announceState(QWidget *control, QAccessible::State changed)
{
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installControlAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

void announce(QWidget *control, QAccessible::Event event)
{
    QAccessibleEvent change(control, event);
    QAccessible::updateAccessibility(&change);
}

void announceChecked(QWidget *control)
{
    QAccessible::State changed;
    changed.checked = true;
    announceState(control, changed);
}

void announceExpanded(QWidget *control)
{
    QAccessible::State changed;
    changed.expanded = true;
    announceState(control, changed);
}

void announceValue(QWidget *control, double value)
{
    QAccessibleValueChangeEvent event(control, value);
    QAccessible::updateAccessibility(&event);
}
