// SPDX-License-Identifier: MIT
#pragma once

class QColorDialog;

/// The full colour panel, one for the whole program: not modal, without alpha and without buttons,
/// it tells each colour the user comes to by currentColorChanged() and its closing by finished().
/// Made with the first call.
QColorDialog &sharedColorPanel();

/// Whether sharedColorPanel() was ever called.
bool sharedColorPanelExists();
