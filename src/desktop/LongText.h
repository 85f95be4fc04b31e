// Texts in message boxes, which may come from a map and have any length. Short ones look as the
// toolkit shows them, long ones scroll, so that the buttons stay on the screen.
#pragma once

#include <string>

class QMessageBox;

namespace tumbledeep {

/// Puts a text into a box that is not shown yet. Of a text beyond 100,000 characters the rest is
/// left out, with "…" in its place.
void SetText(QMessageBox& box, const std::string& text);

} // namespace tumbledeep
