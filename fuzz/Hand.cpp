// Tables of the characters, and the loop that plays them.
#include "Hand.h"

#include <array>
#include <utility>

namespace tumbledeep {

namespace {

using Do = PlayerAct::Do;

constexpr std::string_view Arrows = "^v<>";
constexpr std::array<const char*, 9> Entries{"MnuLoadMap", "MnuBeginagain",   "MnuMapList",
                                             "MnuRestart", "MnuStartLastMap", "MnuOff",
                                             "MnuMode1",   "MnuMode2",        "MnuMode3"};

int PeriodsOf(char sign) {
    switch (sign) {
    case ':': return 10;
    case '~': return 100;
    default: return 1;
    }
}

} // namespace

const PlayerAct LargeWindow{Do::Resize, "", Heading::Up, 15360, 11520};
const PlayerAct SmallWindow{Do::Resize, "", Heading::Up, 4500, 4000};

Hand::Hand(std::string signs, int periods) : text(std::move(signs)), rest(text), left(periods) {}

void Hand::Play(frmMain& game, Hands& hands) {
    while (!IsOver()) {
        const char sign = rest.front();
        rest.remove_prefix(1);
        Act(game, hands, sign);
        for (int i = PeriodsOf(sign); i > 0 && left > 0; --i) Period(game, hands);
    }
}

void Hand::Period(frmMain& game, Hands& hands) {
    --left;
    ++played;
    hands.Period(game);
}

void Hand::Act(frmMain& game, Hands& hands, char sign) {
    if (sign >= 'a' && sign <= 'z' && sign != 'v') return hands.Act(game, {Do::Type, {sign}});
    if (const std::size_t arrow = Arrows.find(sign); arrow < Arrows.size()) {
        const Heading key = Headings.at(arrow);
        keys.Set(key, !keys.Holds(key));
        return hands.Act(game, {keys.Holds(key) ? Do::Press : Do::Release, "", key});
    }
    if (sign >= '0' && sign <= '8') {
        return hands.Act(game, {Do::Menu, Entries.at(static_cast<std::size_t>(sign - '0'))});
    }
    switch (sign) {
    case '!': return hands.Act(game, {Do::Click});
    case 'F': return hands.Act(game, {Do::GotFocus});
    case 'L': return hands.Act(game, {Do::LostFocus});
    case 'D': return hands.Act(game, {Do::Drag, "", Heading::Up, 700, -400});
    case 'E': return hands.Act(game, {Do::Drag, "", Heading::Up, -700, 400});
    case 'R': return hands.Act(game, SmallWindow);
    case 'S': return hands.Act(game, LargeWindow);
    default: return;
    }
}

} // namespace tumbledeep
