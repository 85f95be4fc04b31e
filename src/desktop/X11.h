// The library of X11's protocol that the toolkit has loaded itself: there is nothing to link, and
// no header to install. Requests and replies have the layout of the protocol, which does not
// change.
#pragma once

#include <cstdint>
#include <string>

struct xcb_connection_t;

namespace tumbledeep {

/// The connection to the screen; nullptr where the screen is not X11's.
xcb_connection_t* X11Connection();

/// A function of the library, nullptr if there is none of that name.
void* X11Function(const char* name);

/// The number that stands for a name among all clients of the screen; 0 without X11.
std::uint32_t X11Atom(const std::string& name);

} // namespace tumbledeep
