// What does not belong to one routine of the board.
#include "board/frmDocument.h"

namespace tumbledeep {

frmDocument::frmDocument(frmMain& parent, Platform& services) : Parent(parent), Services(services) {
    Form.Caption = "Area";
}

Pool* frmDocument::PoolOf(Kind kind) {
    switch (kind) {
    case Kind::Dirt: return &Dirt;
    case Kind::HardDirt: return &HardDirt;
    case Kind::Gem1Type: return &Gem1Type;
    case Kind::RoundRock: return &RoundRock;
    case Kind::MovingMineT: return &MovingMineT;
    case Kind::MovingMineL: return &MovingMineL;
    case Kind::MovingMineR: return &MovingMineR;
    case Kind::MovingMineFL: return &MovingMineFL;
    case Kind::MovingMineP: return &MovingMineP;
    case Kind::MovingMinePP: return &MovingMinePP;
    case Kind::Bang: return &Bang;
    case Kind::Empty:
    case Kind::You: break;
    }
    return nullptr;
}

void frmDocument::MoveSprite(PoolSprite sprite, Offset offset, Kind kind) {
    Area(Near(sprite)) = Kind::Empty;
    Area(Near(sprite, offset)) = kind;
    Shift(sprite, offset);
}

} // namespace tumbledeep
