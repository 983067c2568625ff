// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/BusMock.h"

/// A location service on the test's system bus; see geoclue.py for its answers.
class GeoClue
{
public:
    /// Starts the service; true once it can be asked.
    bool answers(const QString &answer)
    {
        return m_mock.start({"--template", TAMSEL_TEST_SOURCES "/support/geoclue.py",
                             "--parameters", "{\"answer\": \"" + answer + "\"}"});
    }

private:
    BusMock m_mock{"--system", "org.freedesktop.GeoClue2", "/org/freedesktop/GeoClue2/Manager"};
};
