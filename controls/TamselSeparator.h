// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// A faint line that fills its frame.
class TamselSeparator : public QWidget
{
    Q_OBJECT

public:
    explicit TamselSeparator(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
