// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

class TamselColorPopover;
class TamselHexField;
class TamselSwatchButton;

namespace platform {
class Appearance;
}

/// Every control in every state, in one appearance. The controls work.
class Gallery : public QWidget
{
    Q_OBJECT

public:
    /// \p appearance must outlive the gallery.
    explicit Gallery(const platform::Appearance &appearance, QWidget *parent = nullptr);
    ~Gallery() override;

private:
    QWidget *addRow(const QString &title, int height = 42);
    void addSwatches();
    void addFields();
    void addSymbolButtons();
    void addTimeRows();
    void addToggles();
    void addPushButtons();
    void addModeControls();
    void addSymbols();
    void addPopover();
    void edit(TamselSwatchButton *swatch, TamselHexField *field);

    int m_bottom;
    std::unique_ptr<TamselColorPopover> m_specimen;
    std::unique_ptr<TamselColorPopover> m_editor;
};
