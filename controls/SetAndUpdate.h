// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <type_traits>

/// Sets \p property, which \p view draws, and repaints the view.
template <typename Value>
void setAndUpdate(QWidget *view, Value &property, const std::type_identity_t<Value> &value)
{
    property = value;
    view->update();
}
