// The map loader: one sprite for each line. It knows nothing of cells.
#include "maps/Module1.h"
#include "platform/Platform.h"
#include "shell/frmMain.h"

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

/// What a line of a keyword makes.
struct Keyword {
    std::string_view Text;
    Pool frmDocument::*Objects;
    bool HasTag;
    Picture Pictures = Picture::None; ///< the pool that a picture is drawn from
    int PictureTotal = 0;
};

constexpr std::array<Keyword, 11> Keywords{{
    {"harddirt", &frmDocument::HardDirt, false},
    {"dirt", &frmDocument::Dirt, false},
    {"gem1type", &frmDocument::Gem1Type, false, Picture::GemTypePic, GemTypePicCount},
    {"roundrock", &frmDocument::RoundRock, false, Picture::RoundRockPic, RoundRockPicCount},
    {"movingmineT", &frmDocument::MovingMineT, false},
    {"movingmineL", &frmDocument::MovingMineL, true},
    {"movingmineR", &frmDocument::MovingMineR, true},
    {"movingmineFL", &frmDocument::MovingMineFL, true},
    {"movingmineP", &frmDocument::MovingMineP, true},
    {"movingminePP", &frmDocument::MovingMinePP, true},
    {"factory", &frmDocument::Factory, true},
}};

constexpr std::string_view Title = "title ";

/// A word that must be a number as a whole.
float Number(std::string_view word) {
    const NumberPrefix number = ReadNumber(word);
    const bool whole =
        number.Length > 0 && word.find_first_not_of(' ', number.Length) == std::string_view::npos;
    if (!whole) throw Failure{Failure::TypeMismatch};
    if (number.TooLarge) throw Failure{Failure::Overflow};
    return static_cast<float>(number.Value);
}

} // namespace

void frmMain::LoadNewMap() {
    while (!MapFile.AtEnd()) {
        MapLine = MapFile.Next();
        LoadLine();
    }
    // ResetStart comes last: it sets view flags that ResizeForm may have cleared.
    ActiveChild.ResetArea();
    ActiveChild.ResizeForm();
    ActiveChild.ResetStart();
    MapFile = FieldInput();
}

void frmMain::LoadLine() {
    const std::string_view first = WordAt(MapLine, 1);
    const std::string_view second = WordAt(MapLine, first.size() + 2);

    if (first == "title") {
        if (MapLine.size() > Title.size()) {
            Services.MsgBox(MapLine.substr(Title.size()), MsgBoxStyle::Ok);
        }
        return;
    }
    if (first == "you") {
        ActiveChild.You.Top = Number(second);
        ActiveChild.You.Left = Number(LastWord(MapLine));
        ActiveChild.YouStart();
        return;
    }

    const auto* const found = std::find_if(Keywords.begin(), Keywords.end(),
                                           [first](const Keyword& k) { return k.Text == first; });
    if (found == Keywords.end()) return;
    Pool& pool = ActiveChild.*found->Objects;
    if (pool.Full()) throw Failure{Failure::Overflow};
    const PoolSprite sprite = pool.Add();
    sprite.Top = Number(second);
    if (found->HasTag) {
        sprite.Left = Number(WordAt(MapLine, first.size() + second.size() + 3));
        sprite.Visible = true;
        sprite.Tag = LastWord(MapLine);
        return;
    }
    sprite.Left = Number(LastWord(MapLine));
    if (found->PictureTotal > 0) {
        ActiveChild.CopyPicture(sprite,
                                ActiveChild.RandomMember(found->Pictures, found->PictureTotal));
    }
    sprite.Visible = true;
}

} // namespace tumbledeep
