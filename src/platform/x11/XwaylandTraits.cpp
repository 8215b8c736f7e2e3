#include "platform/x11/XwaylandTraits.h"

#include "platform/x11/X11Connection.h"

#include <xcb/randr.h>

#include <string_view>

namespace vantle {

namespace {

/// The name of an extension of servers from version 23.1 on, and the prefix of output names in all
/// versions.
constexpr std::string_view kXwayland = "XWAYLAND";

bool hasExtension(X11Connection& x11) {
    const auto answer = x11.reply<xcb_query_extension_reply>(
        xcb_query_extension(x11.xcb(), kXwayland.size(), kXwayland.data()));
    return answer && answer->present != 0;
}

bool hasOutput(X11Connection& x11) {
    if (x11.extension(xcb_randr_id) == nullptr) return false;
    const auto screen = x11.reply<xcb_randr_get_screen_resources_current_reply>(
        xcb_randr_get_screen_resources_current(x11.xcb(), x11.root()));
    if (!screen) return false;
    const auto* const outputs = xcb_randr_get_screen_resources_current_outputs(screen.get());
    for (int i = 0; i < screen->num_outputs; ++i) {
        const auto output = x11.reply<xcb_randr_get_output_info_reply>(
            xcb_randr_get_output_info(x11.xcb(), outputs[i], screen->config_timestamp));
        if (!output) continue;
        const std::string_view name(
            reinterpret_cast<const char*>(xcb_randr_get_output_info_name(output.get())),
            output->name_len);
        if (name.starts_with(kXwayland)) return true;
    }
    return false;
}

} // namespace

XwaylandTraits xwaylandTraits(X11Connection& x11) {
    if (!x11.isAlive()) return {};
    // Older servers do not pass input regions on.
    if (hasExtension(x11)) return {.isXwayland = true, .passesInputRegions = true};
    if (hasOutput(x11)) return {.isXwayland = true, .passesInputRegions = false};
    return {};
}

} // namespace vantle
