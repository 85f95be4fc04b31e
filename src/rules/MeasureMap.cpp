// How large a map is, as the player sees it. The window of that size is windows/view/'s.
#include "world/Board.h"

namespace tumbledeep {

MapEdges Board::MeasureMap() const {
    MapEdges edges;
    // Only walls and dirt count: an object of another kind beyond them lies outside the window.
    for (const Kind kind : {Kind::HardDirt, Kind::Dirt}) {
        for (const int index : Pools[kind].InTurn()) {
            const Sprite& sprite = Pools[kind][index];
            const float bottom = SpriteSize + sprite.Top;
            const float right = SpriteSize + sprite.Left;
            if (bottom > edges.MapBottom) edges.MapBottom = bottom;
            if (right > edges.MapRight) edges.MapRight = RoundToEven(right);
        }
    }
    return edges;
}

} // namespace tumbledeep
