// When the bar comes up, and how it is painted at once.
#include "desktop/LoadProgress.h"

#include <QApplication>
#include <QStatusBar>

namespace tumbledeep {

namespace {

/// In milliseconds: shorter waits are none.
constexpr int LoadPatience = 500;

} // namespace

LoadProgress::LoadProgress(QStatusBar* bar) : statusBar(bar), progress(new QProgressBar(bar)) {
    progress->setRange(0, 100);
    progress->hide();
}

void LoadProgress::Tell(double share) {
    if (!since.isValid() || !since.hasExpired(LoadPatience)) return;
    if (progress->isHidden()) {
        QApplication::setOverrideCursor(Qt::BusyCursor);
        // Over the middle third; the bar's own layout would wait for the event loop.
        const int third = statusBar->width() / 3;
        progress->setGeometry(third, 0, third, statusBar->height());
        progress->show();
        progress->raise();
    }
    progress->setValue(qRound(100 * share));
    progress->repaint();
}

void LoadProgress::End() {
    since.invalidate();
    if (progress->isHidden()) return;
    progress->hide();
    QApplication::restoreOverrideCursor();
}

} // namespace tumbledeep
