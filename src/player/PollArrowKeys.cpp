// The polled road of the keys: state, no events, no memory.
#include "board/frmDocument.h"
#include "platform/Platform.h"

#include <array>
#include <utility>

namespace tumbledeep {

namespace {

// All four are read at every poll, in this order; virtual key codes of user32.
constexpr std::array<std::pair<int, std::string_view>, 4> Arrows{
    {{38, "w"}, {40, "s"}, {37, "a"}, {39, "d"}}};

} // namespace

void frmDocument::PollArrowKeys() {
    for (const auto& [code, key] : Arrows) {
        if (Services.GetKeyState(code) < 0) MoveYou(key);
    }
}

} // namespace tumbledeep
