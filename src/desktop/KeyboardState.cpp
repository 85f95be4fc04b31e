// Asks X11 for the keys that are down and for the lock.
#include "desktop/KeyboardState.h"

#include "desktop/X11.h"

#include <array>
#include <cstdlib>
#include <memory>
#include <string>

namespace tumbledeep {

namespace {

// Declared as the protocol has them, since its headers need not be there.

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

struct PointerReply {
    std::array<std::uint8_t, 24> HeadAndPlaces;
    std::uint16_t Modifiers;
    std::array<std::uint8_t, 6> Unused;
};
constexpr std::uint16_t LockModifier = 2;

template <class... Arguments>
using Query = QueryCookie (*)(xcb_connection_t* connection, Arguments... arguments);
template <class Reply>
using Receive = Reply* (*)(xcb_connection_t* connection, QueryCookie cookie, void** error);

/// The reply to a question of that name; none where X11 is not there.
template <class Reply, class... Arguments>
std::unique_ptr<Reply, decltype(&std::free)> Ask(const char* name, Arguments... arguments) {
    std::unique_ptr<Reply, decltype(&std::free)> reply(nullptr, &std::free);
    xcb_connection_t* const connection = X11Connection();
    if (connection == nullptr) return reply;
    const auto query = reinterpret_cast<Query<Arguments...>>(X11Function(name));
    const auto receive =
        reinterpret_cast<Receive<Reply>>(X11Function((std::string(name) + "_reply").c_str()));
    if (query == nullptr || receive == nullptr) return reply;
    reply.reset(receive(connection, query(connection, arguments...), nullptr));
    return reply;
}

} // namespace

KeyboardState AskKeyboard() {
    KeyboardState state;
    const auto reply = Ask<KeymapReply>("xcb_query_keymap");
    if (!reply) return state;
    for (std::size_t code = 0; code < state.size(); ++code) {
        state[code] = (reply->Keys[code / 8] >> (code % 8) & 1) != 0;
    }
    return state;
}

std::optional<bool> AskCapsLock(std::uint32_t window) {
    const auto reply = Ask<PointerReply>("xcb_query_pointer", window);
    if (!reply) return std::nullopt;
    return (reply->Modifiers & LockModifier) != 0;
}

} // namespace tumbledeep
