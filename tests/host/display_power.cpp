// SPDX-License-Identifier: MIT
// Loaded into the program before the X library: tells it that the display is off as long as the file
// named by DISPLAY_IS_OFF exists.
#include <dlfcn.h>
#include <unistd.h>
#include <xcb/dpms.h>
#include <xcb/xcb.h>

#include <cstdlib>

namespace {

unsigned powerQuestion = 0;

template <typename Function> Function *original(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

const xcb_query_extension_reply_t *xcb_get_extension_data(xcb_connection_t *c, xcb_extension_t *ext)
{
    static xcb_query_extension_reply_t present = {};
    present.present = 1;
    static auto *const real = original<decltype(xcb_get_extension_data)>("xcb_get_extension_data");
    return ext == &xcb_dpms_id ? &present : real(c, ext);
}

/// Another question with an answer of the same length.
xcb_dpms_info_cookie_t xcb_dpms_info(xcb_connection_t *c)
{
    powerQuestion = xcb_get_input_focus(c).sequence;
    return {powerQuestion};
}

int xcb_poll_for_reply(xcb_connection_t *c, unsigned request, void **reply,
                       xcb_generic_error_t **error)
{
    static auto *const real =
        original<int(xcb_connection_t *, unsigned, void **, xcb_generic_error_t **)>(
            "xcb_poll_for_reply");
    const int answered = real(c, request, reply, error);
    if (answered && *reply && request == powerQuestion) {
        const bool isOff = access(std::getenv("DISPLAY_IS_OFF"), F_OK) == 0;
        auto *power = static_cast<xcb_dpms_info_reply_t *>(*reply);
        power->state = 1;
        power->power_level = isOff ? XCB_DPMS_DPMS_MODE_OFF : XCB_DPMS_DPMS_MODE_ON;
    }
    return answered;
}
}
