// A key becomes a step. A step is whole in one call; a key that finds the player not ready is lost.
// `Area` alone decides whether a step happens; the pools are only scanned for the sprites.
#include "board/frmDocument.h"
#include "shell/frmMain.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tumbledeep {

/// What a step key does.
struct frmDocument::Way {
    std::string_view Key;
    Offset Step;
    bool Pushes; ///< rocks and T mines; only to the left and right
};

void frmDocument::MoveYou(std::string_view key) {
    static constexpr std::array<Way, 4> Ways{
        {{"w", Above, false}, {"s", Below, false}, {"a", ToLeft, true}, {"d", ToRight, true}}};

    // The change event that this fires finds an empty text and does nothing.
    Input_Box.Text.clear();
    if (key == "p") {
        Interval100Timer.Enabled = !Interval100Timer.Enabled;
        if (!Interval100Timer.Enabled) MoveReady = false;
    }
    if (!MoveReady) return;
    // A gem whose cell something has overwritten comes back, on any key.
    Stamp(Kind::Gem1Type);

    const auto* const way =
        std::find_if(Ways.begin(), Ways.end(), [key](const Way& w) { return w.Key == key; });
    if (way == Ways.end()) return;
    if (way->Pushes) PushStage(*way);

    const auto col = YouCol + static_cast<float>(way->Step.Col);
    const auto row = YouRow + way->Step.Row;
    const Kind target = Area(GridIndex(col), GridIndex(static_cast<float>(row)));
    if (target == Kind::Empty || target == Kind::Dirt) {
        Walk(*way);
        TakeFrom(Dirt, *way);
    } else if (target == Kind::Gem1Type) {
        Walk(*way);
        TakeFrom(Gem1Type, *way);
    }
}

/// Moves what the player pushes out of the target cell, if the cell beyond is free.
void frmDocument::PushStage(const Way& way) {
    const auto step = static_cast<float>(way.Step.Col);
    const int row = GridIndex(static_cast<float>(YouRow));
    const int targetCol = GridIndex(YouCol + step);
    const int beyondCol = GridIndex(YouCol + 2.0F * step);
    const auto pushes = [&](Kind kind) {
        return Area(beyondCol, row) == Kind::Empty && Area(targetCol, row) == kind;
    };
    const auto sameCol = [&](float col) { return std::trunc(col) == std::trunc(YouCol + step); };

    if (pushes(Kind::RoundRock)) {
        for (PoolIndex = 0; PoolIndex < RoundRock.Count(); ++PoolIndex) {
            if (!RoundRock.Shown(PoolIndex)) continue;
            const PoolSprite rock = RoundRock[PoolIndex];
            PushRockCol = rock.Left / Pitch + 1.0F;
            PushRockRow = RoundToEven(rock.Top / Pitch + 1.0F);
            if (sameCol(PushRockCol) && PushRockRow == YouRow) Push(rock, way, Kind::RoundRock);
        }
        MoveReady = false;
    }
    if (pushes(Kind::MovingMineT)) {
        for (PoolIndex = 0; PoolIndex < MovingMineT.Count(); ++PoolIndex) {
            if (!MovingMineT.Shown(PoolIndex)) continue;
            const PoolSprite mine = MovingMineT[PoolIndex];
            PushMineCol = mine.Left / Pitch + 1.0F;
            PushMineRow = mine.Top / Pitch + 1.0F;
            // A mine between two rows counts for the upper one, a rock for the nearer one.
            if (sameCol(PushMineCol) && std::trunc(PushMineRow) == YouRow) {
                Push(mine, way, Kind::MovingMineT);
            }
        }
        MoveReady = false;
    }
}

void frmDocument::Push(PoolSprite sprite, const Way& way, Kind kind) {
    Area(Near(sprite, way.Step)) = kind;
    Area(Near(sprite)) = Kind::Empty;
    Shift(sprite, way.Step);
}

void frmDocument::Walk(const Way& way) {
    const auto here = [this]() -> Kind& {
        return Area(GridIndex(YouCol), GridIndex(static_cast<float>(YouRow)));
    };
    Kind& left = here();
    YouCol += static_cast<float>(way.Step.Col);
    YouRow += way.Step.Row;
    Shift(You, way.Step);
    here() = Kind::You;
    left = Kind::Empty;
    if (AutoMoveOn && AutoMoveMode == 1) NudgeView(way);
}

/// Mode 1: the board shifts along with the walk. The margins differ from side to side.
void frmDocument::NudgeView(const Way& way) {
    const Window& parent = Parent.Form;
    const float x = You.Left + Form.Left;
    const float y = You.Top + Form.Top;
    const bool moves = [&] {
        if (way.Key == "w") {
            return ViewMovesY && Form.Top < 0 && parent.Height / 2 + 1024 > y;
        }
        if (way.Key == "s") {
            return ViewMovesY && parent.Height - 1250 < Form.Height + Form.Top &&
                   parent.Height / 2 - 1024 < y;
        }
        if (way.Key == "a") {
            return ViewMovesX && Form.Left < 0 && parent.Width / 2 + 1024 > x;
        }
        return ViewMovesX && parent.Width - 360 < Form.Width + Form.Left && parent.Width / 2 < x;
    }();
    if (moves) Shift(Form, {-way.Step.Col, -way.Step.Row});
}

/// Hides the sprite that the player has walked onto, hidden ones not passed over. Up and down end
/// at the first match and leave the player ready: one may run along a column that was once dirt.
/// To the left the test is a cell wider, and takes a sprite in the cell just left as well.
void frmDocument::TakeFrom(Pool& pool, const Way& way) {
    for (PoolIndex = 0; PoolIndex < pool.Count(); ++PoolIndex) {
        const PoolSprite sprite = pool[PoolIndex];
        if (way.Step.Row != 0) {
            if (sprite.Left == You.Left && sprite.Top - 1 < You.Top && sprite.Top + 1 > You.Top) {
                sprite.Visible = false;
                return;
            }
        } else if (way.Step.Col < 0) {
            if (sprite.Top == You.Top && sprite.Left + 1 > You.Left &&
                You.Left + Pitch > sprite.Left - 1) {
                sprite.Visible = false;
            }
        } else if (sprite.Top == You.Top && sprite.Left - 1 < You.Left &&
                   sprite.Left + 1 > You.Left) {
            sprite.Visible = false;
        }
    }
    MoveReady = false;
}

} // namespace tumbledeep
