// Asks X11 for the keys that are down, through the library that the toolkit has loaded itself:
// there is nothing to link, and no header to install. The reply has the layout of the protocol,
// which does not change.
#include "desktop/KeyboardState.h"

#include <QGuiApplication>
#include <QLibrary>

#include <array>
#include <cstdlib>
#include <memory>

namespace tumbledeep {

namespace {

struct QueryCookie {
    unsigned int Sequence;
};

struct KeymapReply {
    std::uint8_t Type;
    std::uint8_t Unused;
    std::uint16_t Sequence;
    std::uint32_t Length;
    std::array<std::uint8_t, 32> Keys;
};

using Query = QueryCookie (*)(xcb_connection_t* connection);
using Receive = KeymapReply* (*)(xcb_connection_t* connection, QueryCookie cookie, void** error);

} // namespace

KeyboardState AskKeyboard() {
    KeyboardState state;
#if QT_CONFIG(xcb)
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    // Without a screen the toolkit still calls itself X11, but has no connection.
    if (x11 == nullptr || x11->connection() == nullptr) return state;
    const QString library = "xcb";
    constexpr int version = 1;
    const auto query =
        reinterpret_cast<Query>(QLibrary::resolve(library, version, "xcb_query_keymap"));
    const auto receive =
        reinterpret_cast<Receive>(QLibrary::resolve(library, version, "xcb_query_keymap_reply"));
    if (query == nullptr || receive == nullptr) return state;
    const std::unique_ptr<KeymapReply, decltype(&std::free)> reply(
        receive(x11->connection(), query(x11->connection()), nullptr), &std::free);
    if (!reply) return state;
    for (std::size_t code = 0; code < state.size(); ++code) {
        state[code] = (reply->Keys[code / 8] >> (code % 8) & 1) != 0;
    }
#endif
    return state;
}

} // namespace tumbledeep
