// The table of marks that pictures have from the start.
#include "formats/Legend.h"

namespace tumbledeep {

const Legend& DefaultLegend() {
    // A mine without a heading of its own goes down, like one that a factory makes.
    static const Legend marks{
        {'@', {{Kind::You, ""}}},           {'#', {{Kind::HardDirt, ""}}},
        {'.', {{Kind::Dirt, ""}}},          {'*', {{Kind::Gem1Type, ""}}},
        {'O', {{Kind::RoundRock, ""}}},     {'T', {{Kind::MovingMineT, ""}}},
        {'L', {{Kind::MovingMineL, "D"}}},  {'R', {{Kind::MovingMineR, "D"}}},
        {'F', {{Kind::MovingMineFL, "D"}}}, {'P', {{Kind::MovingMineP, "D"}}},
        {'Q', {{Kind::MovingMinePP, "D"}}},
    };
    return marks;
}

bool IsPlainTag(std::string_view tag) {
    return !tag.empty() && tag.find_first_of(" ,\r\n") == std::string_view::npos;
}

} // namespace tumbledeep
