// The wish of the desktop that the game's window be closed, while a dialog is open: the toolkit
// holds it back from a window that a dialog blocks, but who closes the game means it. On X11 alone;
// elsewhere such a wish goes unheard until the dialog is answered.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QWindow>

#include <cstdint>
#include <functional>

namespace tumbledeep {

class CloseRequests final : public QAbstractNativeEventFilter {
  public:
    /// Calls `wish` for every request to close this window, before the toolkit sees it.
    CloseRequests(WId window, std::function<void()> wish);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  private:
    WId window;
    std::function<void()> wish;
    std::uint32_t deleteWindow; ///< the request's name
};

} // namespace tumbledeep
