// The desktop half on the toolkit's offscreen platform: what needs no window manager and no server.
// Focus, keys and the next process are tested by the real program in the Python files beside this
// one.
#include "base/Random.h"
#include "desktop/GameWindow.h"
#include "desktop/Places.h"
#include "pictures/Catalogue.h"
#include "pictures/DevicePixels.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
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
        window = std::make_unique<GameWindow>(*game, player, *platform, options);
        window->resize(700, 500);
        window->show();
        window->activateWindow();
        while (game->ActiveChild.TickCount < 3) Wait(10);
    }
    static void Wait(int milliseconds) {
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        QApplication::processEvents();
    }
    BoardCanvas* Canvas() const { return static_cast<BoardCanvas*>(window->centralWidget()); }
    /// The canvas in device pixels, painted by a plain walk over all sprites.
    QImage Plain() const {
        const frmDocument& board = game->ActiveChild;
        const int scale = Canvas()->Scale();
        SpriteImages images;
        images.SetScale(scale);
        QImage image((QSizeF(Canvas()->size()) * Canvas()->devicePixelRatioF()).toSize(),
                     QImage::Format_RGB32);
        image.fill(QColor(128, 128, 128));
        QPainter painter(&image);
        const QRect place = BoardRect(board, scale);
        painter.setClipRect(place);
        painter.fillRect(place, Qt::white);
        const auto paint = [&](Kind kind, const Sprite& sprite) {
            const QPoint corner(ToDevice(sprite.Left, scale), ToDevice(sprite.Top, scale));
            if (sprite.Visible)
                painter.drawImage(place.topLeft() + corner, images.Of(kind, sprite.Look));
        };
        for (const Kind kind : PaintOrder()) {
            if (kind == Kind::You) {
                paint(kind, board.You);
            } else {
                for (const Sprite& sprite : board.Pools[kind]) paint(kind, sprite);
            }
        }
        return image;
    }
    /// Whether the screen shows the canvas so. At a broken scale the platform has its upper left
    /// part alone.
    bool Shows(const QImage& plain) const {
        QApplication::sendPostedEvents();
        const QPoint at = (QPointF(Canvas()->pos()) * Canvas()->devicePixelRatioF()).toPoint();
        const QImage shown = window->screen()->grabWindow(window->winId()).toImage();
        const QRect part = QRect(at, plain.size()) & shown.rect();
        return Same(shown.copy(part), plain.copy(part.translated(-at)));
    }
    /// Whether the canvas paints a part so that is exposed alone.
    bool Paints(const QRect& part, const QImage& plain) const {
        const qreal ratio = Canvas()->devicePixelRatioF();
        return Same(Canvas()->grab(part).toImage(),
                    plain.copy(QRectF(part.topLeft() * ratio, part.size() * ratio).toRect()));
    }
    static bool Same(const QImage& a, const QImage& b) {
        return a.convertToFormat(QImage::Format_RGB32) == b.convertToFormat(QImage::Format_RGB32);
    }
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
    Hands player;
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
    for (int period = 0; period < 150; ++period) {
        game->ActiveChild.AutoMoveOn =
            period < 75; // at a broken scale a view that moves repaints all
        if (period % 20 == 0) RightArrow(QEvent::KeyPress);
        if (period % 20 == 15) RightArrow(QEvent::KeyRelease);
        Wait(10);
        ASSERT_TRUE(Shows(Plain())) << "period " << period;
    }
}

TEST_F(Offscreen, AnyPartOfAnyBoardIsPaintedAsByAWalkOverAllSprites) {
    Open("harddirt 0 0\nharddirt 144000 144000\nyou 113000 113100\n", "[AutoMove]\nMOVE=False\n");
    frmDocument& board = game->ActiveChild;
    board.Interval100Timer.Enabled = false;
    Random random;
    const auto below = [&random](int limit) {
        return static_cast<int>(random.Rnd() * static_cast<float>(limit));
    };
    // At the board's upper left corner, then where the grid ends and the board goes on; half of
    // the places on the pitch.
    int corner = 0;
    const auto place = [&] {
        const auto cells = static_cast<float>(corner - 2 + below(32)) * Pitch;
        return cells + static_cast<float>(below(2) * below(360));
    };
    for (int round = 0; round < 80; ++round) {
        corner = round < 40 ? 0 : 290;
        board.Form.Left = board.Form.Top = Pitch - static_cast<float>(corner) * Pitch;
        for (int change = below(round % 40 < 10 ? 500 : 20); change > 0; --change) {
            Pool& pool = board.Pools[PoolKinds()[static_cast<std::size_t>(below(PoolCount))].Which];
            const int i = below(3) == 0 ? pool.Add() : below(pool.Count());
            below(4) == 0 ? pool.Hide(i) : pool.Show(i);
            if (const float left = place(); below(2) == 0) pool.Put(i, left, place());
            if (below(9) == 0) pool.Dress(i, Member(Picture::RoundRockPic, below(7)));
        }
        board.You.Left = place();
        Canvas()->Sync();
        const QImage plain = Plain();
        ASSERT_TRUE(Shows(plain)) << "round " << round;
        for (int i = 0; i < 20; ++i) {
            const QRect part(2 * below(280), 2 * below(150), 2 + 2 * below(60), 2 + 2 * below(60));
            ASSERT_TRUE(Paints(part, plain)) << "round " << round;
        }
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
