// The desktop half on the toolkit's offscreen platform: what needs no window manager and no server.
// Focus, keys and the next process are tested by the real program in the Python files beside this
// one.
#include "desktop/GameWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>

#include <fstream>

namespace tumbledeep {

namespace {

class Offscreen : public testing::Test {
  protected:
    void Open(const std::string& map, const std::string& settings) {
        const std::filesystem::path directory = folder.path().toStdString();
        std::ofstream(directory / "M.TBM") << map;
        std::ofstream(directory / "Tumbledeep.ini") << "[Level]\nLOAD=M.TBM\n" << settings;
        Options options;
        options.Directory = directory;
        platform = std::make_unique<DesktopPlatform>(options);
        game = std::make_unique<frmMain>(*platform);
        window = std::make_unique<GameWindow>(*game, *platform, options);
        window->resize(700, 500);
        window->show();
        window->activateWindow();
        while (game->ActiveChild.TickCount < 3) Wait(10);
    }
    static void Wait(int milliseconds) {
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        QApplication::processEvents();
    }
    QWidget* Canvas() const { return window->centralWidget(); }
    void RightArrow(QEvent::Type what) const {
        constexpr quint32 scanCode = 114;
        QKeyEvent event(what, Qt::Key_Right, Qt::NoModifier, scanCode, 0, 0);
        QApplication::sendEvent(Canvas(), &event);
    }
    void Mouse(QEvent::Type what, QPointF at) const {
        QMouseEvent event(what, at, Canvas()->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(Canvas(), &event);
    }

    QTemporaryDir folder;
    std::unique_ptr<DesktopPlatform> platform;
    std::unique_ptr<frmMain> game;
    std::unique_ptr<GameWindow> window;
};

/// A corridor for the player over chambers in which runners never rest and rocks roll.
std::string Bustle() {
    std::string map = "you 360 7200\n";
    const auto add = [&map](const char* what, int row, int col, const char* heading = "") {
        map += std::string(what) + " " + std::to_string(row * 360) + " " +
               std::to_string(col * 360) + heading + "\n";
    };
    for (int col = 0; col < 80; ++col) {
        for (const int row : {0, 2, 30}) add("harddirt", row, col);
        add(col % 3 == 0 ? "roundrock" : "dirt", 4 + col % 5, col);
        if (col % 8 == 4) add("movingmineFL", 11 + col / 8, col, " R");
        if (col % 8 == 6) add("movingmineR", 21, col);
    }
    return map + "gem1type 10440 360\n";
}

TEST_F(Offscreen, WhatIsPaintedAfterATickIsAllThatHasChanged) {
    Open(Bustle(), "[AutoMove]\nMOVE=True\nMODE=2\n");
    const auto same = [this] {
        QApplication::sendPostedEvents();
        // The platform reckons without the scale: at 1.5 it shows the upper left part.
        const QImage shown = window->screen()->grabWindow(window->winId()).toImage();
        const QImage fresh = window->grab().toImage().copy(shown.rect());
        return shown.convertToFormat(QImage::Format_RGB32) ==
               fresh.convertToFormat(QImage::Format_RGB32);
    };
    for (int period = 0; period < 150; ++period) {
        game->ActiveChild.AutoMoveOn =
            period < 75; // at a broken scale a view that moves repaints all
        if (period % 20 == 0) RightArrow(QEvent::KeyPress);
        if (period % 20 == 15) RightArrow(QEvent::KeyRelease);
        Wait(10);
        ASSERT_TRUE(same()) << "period " << period;
    }
}

TEST_F(Offscreen, ThePressThatBringsTheGameBackIsNone) {
    Open("harddirt 0 0\nharddirt 3600 3600\nyou 360 360\ngem1type 720 720\n",
         "[AutoMove]\nMOVE=False\nMODE=2\n");
    const frmDocument& board = game->ActiveChild;
    const QPointF spot = QPointF(board.Form.Left, board.Form.Top) / 15 + QPointF(200, 60);
    const float left = board.Form.Left;
    for (const bool pressFirst : {true, false}) {
        emit qApp->applicationStateChanged(Qt::ApplicationInactive);
        EXPECT_FALSE(board.Interval100Timer.Enabled);
        if (pressFirst) Mouse(QEvent::MouseButtonPress, spot);
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        if (!pressFirst) Mouse(QEvent::MouseButtonPress, spot);
        Mouse(QEvent::MouseMove, spot + QPointF(40, 0));
        Mouse(QEvent::MouseButtonRelease, spot);
        EXPECT_TRUE(board.Interval100Timer.Enabled) << pressFirst;
        EXPECT_EQ(left, board.Form.Left) << pressFirst;
    }
    Wait(200);
    Mouse(QEvent::MouseButtonPress, spot);
    EXPECT_FALSE(board.Interval100Timer.Enabled) << "a press of its own pauses";
    Mouse(QEvent::MouseMove, spot + QPointF(40, 0));
    EXPECT_LT(left, board.Form.Left);
}

} // namespace
} // namespace tumbledeep

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
