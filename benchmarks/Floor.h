// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>

/// What both floors have in common: their arguments, WIDTHxHEIGHT of the window and the number of
/// pixels that change, and their pace of 30 frames a second.
struct Floor
{
    int width = 0;
    int height = 0;
    /// Of the square that changes; 0 for a wrong use.
    int side = 0;

    Floor(int argc, char **argv)
    {
        if (argc == 3 && std::sscanf(argv[1], "%dx%d", &width, &height) == 2)
            side = std::min({int(std::sqrt(std::atof(argv[2]))), width, height});
        clock_gettime(CLOCK_MONOTONIC, &m_due);
    }

    void awaitNextFrame()
    {
        constexpr long kSecond = 1'000'000'000;
        m_due.tv_nsec += kSecond / 30;
        if (m_due.tv_nsec >= kSecond) {
            m_due.tv_nsec -= kSecond;
            ++m_due.tv_sec;
        }
        clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &m_due, nullptr);
    }

private:
    timespec m_due = {};
};
