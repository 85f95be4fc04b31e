// The typed road of the keys.
#include "board/frmDocument.h"

namespace tumbledeep {

void frmDocument::Input_Box_Change() {
    if (Input_Box.Text.empty()) return;
    const std::string key = Input_Box.Text;
    MoveYou(key);
}

} // namespace tumbledeep
