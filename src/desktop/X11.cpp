// Where the toolkit was built without X11, all of it says that there is none.
#include "desktop/X11.h"

#include <QGuiApplication>
#include <QLibrary>

#include <cstdlib>
#include <memory>

namespace tumbledeep {

namespace {

struct AtomCookie {
    unsigned int Sequence;
};

struct AtomReply {
    std::uint8_t Type;
    std::uint8_t Unused;
    std::uint16_t Sequence;
    std::uint32_t Length;
    std::uint32_t Atom;
};

using Intern = AtomCookie (*)(xcb_connection_t* connection, std::uint8_t onlyIfExists,
                              std::uint16_t length, const char* name);
using Receive = AtomReply* (*)(xcb_connection_t* connection, AtomCookie cookie, void** error);

} // namespace

xcb_connection_t* X11Connection() {
#if QT_CONFIG(xcb)
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    // Without a screen the toolkit still calls itself X11, but has no connection.
    return x11 == nullptr ? nullptr : x11->connection();
#else
    return nullptr;
#endif
}

void* X11Function(const char* name) {
    constexpr int version = 1;
    return reinterpret_cast<void*>(QLibrary::resolve("xcb", version, name));
}

std::uint32_t X11Atom(const std::string& name) {
    xcb_connection_t* const connection = X11Connection();
    if (connection == nullptr) return 0;
    const auto intern = reinterpret_cast<Intern>(X11Function("xcb_intern_atom"));
    const auto receive = reinterpret_cast<Receive>(X11Function("xcb_intern_atom_reply"));
    if (intern == nullptr || receive == nullptr) return 0;
    const auto length = static_cast<std::uint16_t>(name.size());
    const std::unique_ptr<AtomReply, decltype(&std::free)> reply(
        receive(connection, intern(connection, 0, length, name.data()), nullptr), &std::free);
    return reply ? reply->Atom : 0;
}

} // namespace tumbledeep
