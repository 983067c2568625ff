// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

namespace platform {

struct FreedReply
{
    void operator()(void *reply) const { std::free(reply); }
};

/// A reply or an error of the X server, which XCB allocated with malloc(); null when there is none.
template <typename T>
using XcbReply = std::unique_ptr<T, FreedReply>;

} // namespace platform
