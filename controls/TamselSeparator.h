// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// A faint line, as long and as thick as its frame.
class TamselSeparator : public QWidget
{
    Q_OBJECT

public:
    explicit TamselSeparator(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
