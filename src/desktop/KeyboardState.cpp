// Asks X11 for the keys that are down.
#include "desktop/KeyboardState.h"

#include "desktop/X11.h"

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
    xcb_connection_t* const connection = X11Connection();
    if (connection == nullptr) return state;
    const auto query = reinterpret_cast<Query>(X11Function("xcb_query_keymap"));
    const auto receive = reinterpret_cast<Receive>(X11Function("xcb_query_keymap_reply"));
    if (query == nullptr || receive == nullptr) return state;
    const std::unique_ptr<KeymapReply, decltype(&std::free)> reply(
        receive(connection, query(connection), nullptr), &std::free);
    if (!reply) return state;
    for (std::size_t code = 0; code < state.size(); ++code) {
        state[code] = (reply->Keys[code / 8] >> (code % 8) & 1) != 0;
    }
    return state;
}

} // namespace tumbledeep
