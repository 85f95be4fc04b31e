// A long load tells how far it is: after half a second the pointer becomes a busy one and a bar
// grows in the status bar. No event loop runs meanwhile, so it paints by itself.
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

class QStatusBar;

namespace tumbledeep {

class LoadProgress {
  public:
    /// Puts its bar over a status bar, which must outlive it.
    explicit LoadProgress(QStatusBar* bar);
    LoadProgress(const LoadProgress&) = delete;
    LoadProgress& operator=(const LoadProgress&) = delete;

    /// A load, or a part of one behind a dialog, begins.
    void Begin() { since.start(); }
    /// A share from 0 to 1 has been loaded.
    void Tell(double share);
    /// The load has ended, or a dialog interrupts it.
    void End();

  private:
    QStatusBar* statusBar;
    QProgressBar* progress;
    QElapsedTimer since;
};

} // namespace tumbledeep
