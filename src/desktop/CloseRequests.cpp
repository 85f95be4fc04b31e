// X11's desktops send a message to the window, WM_DELETE_WINDOW of the inter-client conventions.
#include "desktop/CloseRequests.h"

#include "desktop/X11.h"

#include <QCoreApplication>

#include <array>
#include <utility>

namespace tumbledeep {

namespace {

struct ClientMessage {
    std::uint8_t Type;
    std::uint8_t Format;
    std::uint16_t Sequence;
    std::uint32_t Window;
    std::uint32_t Kind;
    std::array<std::uint32_t, 5> Data;
};

constexpr unsigned ClientMessageType = 33;
/// Set in the type of an event that another client has sent.
constexpr unsigned SentBit = 0x80;

} // namespace

CloseRequests::CloseRequests(WId which, std::function<void()> call)
    : window(which), wish(std::move(call)), deleteWindow(X11Atom("WM_DELETE_WINDOW")) {
    if (deleteWindow != 0) QCoreApplication::instance()->installNativeEventFilter(this);
}

bool CloseRequests::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    if (type != "xcb_generic_event_t") return false;
    const auto* const event = static_cast<const ClientMessage*>(message);
    if ((event->Type & ~SentBit) == ClientMessageType && event->Window == window &&
        event->Data[0] == deleteWindow) {
        wish();
    }
    return false;
}

} // namespace tumbledeep
