// SPDX-License-Identifier: MIT
#include "controls/ControlAccessibility.h"

#include "controls/Popover.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TimePicker.h"

#include <QAccessibleWidget>
#include <QLineEdit>

namespace {

constexpr const char *kRole = "accessibleRole";
constexpr const char *kValue = "value";
constexpr double kSliderStep = 0.01;
constexpr int kLastMinute = 24 * 60 - 1;

QAccessible::Role roleOf(const QObject *control)
{
    return static_cast<QAccessible::Role>(control->property(kRole).toInt());
}

/// A button that is checkable or opens a menu. Qt's own accessible button has no role for a menu
/// that is created on demand, and its toggle action does not emit clicked().
class AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(QAbstractButton *button) : QAccessibleWidget(button), m_button(button)
    {
    }

    QAccessible::Role role() const override { return roleOf(m_button); }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value && m_button->isCheckable())
            return QString::number(m_button->isChecked() ? 1 : 0);
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = m_button->isDown();
        state.checkable = m_button->isCheckable();
        state.checked = m_button->isChecked();
        state.hasPopup = role() == QAccessible::ButtonMenu;
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_button->isEnabled())
            names.prepend(clickAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == clickAction())
            m_button->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QString clickAction() const
    {
        if (role() == QAccessible::ButtonMenu)
            return showMenuAction();
        return m_button->isCheckable() ? toggleAction() : pressAction();
    }

    QAbstractButton *m_button;
};

/// A swatch is either one choice of several, or opens a popover that edits its colour. An open
/// popover is reported as the swatch's child, because Qt does not list popup windows among the
/// windows of the application.
class AccessibleSwatch final : public AccessibleButton
{
public:
    explicit AccessibleSwatch(TamselSwatchButton *swatch)
        : AccessibleButton(swatch), m_swatch(swatch)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
        if (m_swatch->usesPickerSelection()) {
            state.hasPopup = true;
            state.expandable = true;
            state.expanded = m_swatch->pickerActive();
            state.collapsed = !m_swatch->pickerActive();
        }
        return state;
    }

    int childCount() const override { return openPopover() ? 1 : 0; }

    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(openPopover()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == openPopover() ? 0 : -1;
    }

private:
    /// Null when there is none.
    Popover *openPopover() const
    {
        const auto popovers = m_swatch->findChildren<Popover *>(Qt::FindDirectChildrenOnly);
        for (Popover *popover : popovers) {
            if (popover->isVisible())
                return popover;
        }
        return nullptr;
    }

    TamselSwatchButton *m_swatch;
};

/// A number from 0 to \p last, read and written as the control's property "value". Qt's own
/// accessible slider has whole numbers only, and its time editor has no number in every version of
/// Qt.
class AccessibleNumber final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    AccessibleNumber(QWidget *control, double last, double step)
        : QAccessibleWidget(control, roleOf(control)), m_last(last), m_step(step)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        // A number that can be typed shares the text interface of its line edit.
        const bool isText =
            type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface;
        auto *editor = widget()->findChild<QLineEdit *>();
        return isText && editor
                   ? QAccessible::queryAccessibleInterface(editor)->interface_cast(type)
                   : QAccessibleWidget::interface_cast(type);
    }

    /// Hides the line edit.
    int childCount() const override { return 0; }

    QVariant currentValue() const override { return widget()->property(kValue); }
    void setCurrentValue(const QVariant &value) override { widget()->setProperty(kValue, value); }
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return m_last; }
    QVariant minimumStepSize() const override { return m_step; }

private:
    double m_last;
    double m_step;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *control = qobject_cast<QWidget *>(object);
    // While a control is destroyed, its class is QWidget in the end; no interface may be made then.
    if (!control || control->metaObject() == &QWidget::staticMetaObject ||
        !control->property(kRole).isValid())
        return nullptr;
    if (auto *swatch = qobject_cast<TamselSwatchButton *>(control))
        return new AccessibleSwatch(swatch);
    if (auto *button = qobject_cast<QAbstractButton *>(control))
        return new AccessibleButton(button);
    if (qobject_cast<TamselGradientSlider *>(control))
        return new AccessibleNumber(control, TamselGradientSlider::maxValue(), kSliderStep);
    if (qobject_cast<TimePicker *>(control))
        return new AccessibleNumber(control, kLastMinute, 1.0);
    return new QAccessibleWidget(control, roleOf(control));
}

} // namespace

void setAccessibleRole(QWidget *control, QAccessible::Role role)
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed)
    control->setProperty(kRole, static_cast<int>(role));
}
