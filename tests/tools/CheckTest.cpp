// What the check of maps and lists finds, and on which of them it has nothing to say. A row of a
// table is a small file and what has to be said of it: all of that, by lines, and no more. "3e no
// gem" is an error in line 3 with these words in it, "3w" a warning.
#include "map/check/Checks.h"
#include "soak/RandomGame.h"
#include "support/TempFolder.h"

namespace tumbledeep {

namespace {

constexpr std::string_view Room = "######/#@*  #/######";

/// The lines of a map behind some others: # wall . dirt * gem O rock T a mine ^ factory @ player,
/// "/" ends a row.
std::string Map(std::string text, std::string_view picture) {
    static const std::map<char, std::string> names{
        {'#', "harddirt"},  {'.', "dirt"},        {'*', "gem1type"}, {'@', "you"},
        {'O', "roundrock"}, {'T', "movingmineT"}, {'^', "factory"}};
    int row = 0;
    int col = 0;
    for (const char c : picture) {
        if (const auto name = names.find(c); name != names.end()) {
            text +=
                name->second + ' ' + std::to_string(row * 360) + ' ' + std::to_string(col * 360);
            text += c == '^' ? " 1:roundrock\n" : "\n";
        }
        col = c == '/' ? 0 : col + 1;
        row += c == '/' ? 1 : 0;
    }
    return text;
}

/// Checks a file, and its findings against those wanted, which "|" separates.
void Expect(const std::filesystem::path& file, const std::string& bytes,
            const std::string& wanted) {
    std::istringstream pieces(wanted);
    std::string piece;
    for (const Finding& finding : CheckFile(file.string())) {
        const std::string place =
            std::to_string(finding.Line) + (finding.Weight == Severity::Error ? "e " : "w ");
        const std::string all = place + finding.Text + "; " + finding.Hint;
        EXPECT_TRUE(std::getline(pieces, piece, '|')) << bytes << "-- too many: " << all;
        EXPECT_TRUE(all.starts_with(piece.substr(0, piece.find(' ') + 1))) << bytes << all;
        EXPECT_NE(all.find(piece.substr(piece.find(' ') + 1)), std::string::npos)
            << bytes << "-- " << piece << "\n-- " << all;
    }
    EXPECT_FALSE(std::getline(pieces, piece, '|')) << bytes << "-- not found: " << piece;
}

struct Row {
    std::string Text;
    std::string Wanted;
    std::string_view Picture = Room;
};

/// Lines, each with the one finding that it gets; ~ is a tab, and | ends a line too.
constexpr std::string_view Faults =
    R"(dirt 0 O -> e loading stops here with failure 13; write digits
dirt  0 360 -> e missing: failure 13; leave one|dirt 0 360  -> e blank at the end
dirt -> e write the name, Top|dirt is soft -> e begin comments|dirt 0~360 -> e place of the tab|"dirt 0,5 360" -> e point
dirt 1e39 0 -> e failure 6|movingmineT 0 0 U -> e take "U" away|dirt 3600 -> w both Top and Left
dirt 3600 5 3960 -> w Left
movingmineL 1080 0 u -> w "u" is no heading: the mine stands still; write U
movingmineL 1080 360  -> w heading is missing|movingmineL 1080 720 U  -> w hides the heading
movingmineL 1080 1080 U up -> w behind the heading U|title -> w no text
factory 1440 0 gem1type -> e begin with a digit|factory 1440 360 5gem1type -> e write 5:gem1type
factory 1440 720 10:dirt -> e more than one digit|factory 1440 1080 1:rock -> e "roundrock"
factory 1440 1440 1:you -> e player|factory 1440 1800 -> e recipe is missing
factory 1440 2520 1:dirt  -> e hides the recipe
factory 1440 2880 1:gem1type -> w may not count for the win|Dirt 0 0 -> e "dirt"
gemtype1 0 0 -> e "gem1type"|rock 0 0 -> e "roundrock"|dirt~0 0 -> e a tab|bang 0 0 -> e factory
xyzzy 5 5 -> e lines begin with|Some prose -> w rem|Dirt is soft -> w rem
title Down, down, down -> w "down" is lost; put the whole line
rem a, dirt 1800 0 -> e a line of its own; put the whole line
dirt 1800,1800 -> e a blank between numbers|dirt 1800 360,dirt 1800 720 -> w each object on a line
"title a" b -> w "b" behind
roundrock 0 108000 -> e outside the board|dirt 0 -360 -> w out of sight|you 0 720 -> w line 48 too)";

/// The row of the table above.
Row FaultsRow() {
    Row row;
    std::string table(Faults);
    for (char& c : table) c = c == '~' ? '\t' : c == '|' ? '\n' : c;
    std::istringstream lines(table);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t arrow = line.rfind(" -> ");
        row.Text += line.substr(0, arrow) + '\n';
        row.Wanted += std::to_string(++number) + line.substr(arrow + 4) + '|';
    }
    return row;
}

TEST(Check, MapsWithFaults) {
    const TempFolder folder;
    folder.Write("Default.TBL", "m\n");
    const std::string far = "dirt 3600 3600\n"; // does no harm there
    std::string stack;
    for (int i = 0; i < 32767; ++i) stack += far;
    for (const auto& [text, wanted, picture] : {
             FaultsRow(), Row{stack, "2w 32766 objects share one cell|32767e more than the 32766"},
             Row{"\"title a\ndirt 0 0\"\n", "1w closed in line 2"},
             Row{"\"title a\n", "1e never closed"},
             Row{"You 360 360\n", "1e \"you\"", "####/# *#/####"},
             Row{"", "1e no player|1e no gem", "####/#  #/####"},
             Row{"dirt 360 720\n", "10w gem1type shares its cell with the dirt of line 1, and the "
                                   "cell counts as dirt until a key brings back the gem; leave one "
                                   "of them in column 3, row 2"},
             Row{"movingminePP 360 1080 U\nfactory 360 1080 1:dirt\nfactory 360 1080 1:dirt\n",
                 "2w 3 objects share one cell, the first in line 1, and the cell is empty"},
             Row{far + far, "2w the same dirt stands in line 1"},
             Row{"", "5e hole in column 2, row 1 (Top 0, Left 360)", "# ##/#@*#/####"},
             Row{"", "1e outside the walls", "@*"}, Row{"dirt 9e6 0\n", "1e outside the board"},
             Row{"", "13w 2 objects, from this one on, stand outside", "####/#@*#/####/OO"},
             Row{"", "9e column 4, row 2|13e column 3, row 3", "#####/#@#*#/##*##/#####"},
             Row{"roundrock 360 1445\n", "1w between two cells; the nearest is column 5, row 2",
                 "######/#@#* #/######"}, // so that nothing is said of the gem
             Row{"", "9e no play can get the gem", "#####/#@O*#/#####"}, // the rock is stuck
         }) {
        const std::string bytes = Map(text, picture);
        folder.Write("m.TBM", bytes);
        Expect(folder.Path / "m.TBM", bytes.substr(0, 300), wanted);
    }
}

// Gems are got by pushing, rolling, blowing up and by the key that brings them back.
TEST(Check, OddMapsWithoutFault) {
    const TempFolder folder;
    folder.Write("other.tbl", "\"m, n\"\n");
    for (const auto& [text, wanted, picture] : {
             Row{"\"title Down,\ndown\"\nrem a, b\n# c\n- d\n\n   \nREM e\ndirt 3600  3600\n", ""},
             Row{"factory 360 720 1:gem1type\nfactory 360 1080 9;bang\ndirt 3.6e3 +3600,\n", ""},
             Row{"harddirt 360 720\n", "10w cell counts as harddirt"},
             Row{"", "", " #####/#@O *#/######"}, // a corner is missing
             Row{"", "", "######/##@###/##O *#/##*  #/######"},
             Row{"", "", "####/#@##/#O*#/#  #/####"},
             Row{"", "", "######/#@####/# #*##/# #O##/#  .##/######"},
             Row{"", "", "######/#OO@##/# ####/#  *##/# ####/# ####/######"},
             Row{"factory 360 720 1:bang\n", "", "#####/#@O*#/#####"},
         }) {
        const std::string bytes = Map(text, picture);
        folder.Write("m, n.TBM", bytes);
        Expect(folder.Path / "m, n.TBM", bytes, wanted);
    }
}

TEST(Check, PicturesNameTheirOwnLines) {
    const TempFolder folder;
    const std::string board = "board\n#####\n#@*x#\n#####\n";
    for (const auto& [text, wanted, unused] : {
             Row{"\nx = movingmineL d\nboard\n######\n#@*xx#\n######", "2w write D"},
             Row{"x = factory 9dirt\n" + board, "1e write 9:dirt"},
             Row{"board\n####\n#@*\n####", "3e draw a # there"},
             Row{"board\n####\n#  #\n####", "1e draw a @|1e draw a *"},
             Row{"board\n#####\n#@* #\n#O  #\n#T###\n###", ""},
             Row{"board\n###\n#O#\n# #\n#@#\n#*#\n###", "5w dead in tick"},
         }) {
        folder.Write("m.txt", text);
        Expect(folder.Path / "m.txt", text, wanted);
    }
    for (const auto& [name, bytes] : {std::pair<std::string, std::string>{"p.TBM", board},
                                      {"l.TBL", "a"},
                                      {"u.TBM", std::string("d\0", 2)},
                                      {"d", ""}}) {
        if (name == "d") {
            std::filesystem::create_directory(folder.Path / name);
        } else {
            folder.Write(name, bytes);
        }
        EXPECT_THROW(ReadMapSource((folder.Path / name).string()), std::runtime_error) << name;
    }
}

TEST(Check, Lists) {
    const TempFolder folder;
    for (const char* map : {"a.TBM", "b, c.TBM", "d.tbm", "e.txt"}) folder.Write(map, "");
    for (const auto& [text, wanted, unused] : {
             Row{"a\n\"b, c\"\nd\ne", "4e only a text picture"},
             Row{"", "1e empty"},
             Row{"a\n\nd\n\n", "2e blank line|4w after the last map"},
             Row{"xyz\nA\na.TBM\na \n",
                 "1e mend the name|2w file is \"a\"|3e extension|4e ends in a blank"},
             Row{"a\nb, c \nd\na\n\"b; c\"", "2e comma|4w in line 1|5e did you mean \"b, c\""},
             Row{"\xEF\xBB\xBF"
                 "b, c\n\"a\" x\n\"d\n",
                 "1e comma|2w \"x\" behind|3e never closed"},
         }) {
        folder.Write("l.tbl", text);
        Expect(folder.Path / "l.tbl", text, wanted);
    }
    folder.Write("A.TBM", Map("", Room));
    folder.Write("l.tbl", "d");
    Expect(folder.Path / "A.TBM", "", "1w no list");
    folder.Write("l.tbl", "a");
    Expect(folder.Path / "A.TBM", "", "1w l.tbl names this map in another case");
}

TEST(Check, NobodyGetsAGemThatIsGivenUp) {
    std::size_t givenUp = 0;
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        Dice dice(seed);
        const std::string_view kinds = dice.Once(3) ? "# # # . * O T ^" : "# # # * * O O O .";
        std::string picture(49, '#'); // of 7 times 7 cells
        for (std::size_t cell = 8; cell < 41; ++cell) {
            if (cell % 7 % 6 != 0) picture.replace(cell, 1, cell == 24 ? "@" : dice.OneOf(kinds));
        }
        for (std::size_t row = 6; row > 0; --row) picture.insert(row * 7, 1, '/');
        // Gems first: then the line of each is its index in the pool.
        std::string gems = picture;
        std::ranges::replace_if(
            gems, [](char c) { return c != '*' && c != '/'; }, ' ');
        std::ranges::replace(picture, '*', ' ');
        const std::string text = Map(Map("", gems), picture);
        const MapSource source{"m.TBM", false, text, ReadRecords(text), {}, 0};
        const Findings found = CheckReach(ReadChecked(source));
        givenUp += found.size();
        Board board = LoadMap(text, seed);
        for (int i = 0; i < 2000 && board.Result == Outcome::Running; ++i) {
            board.Period(dice.OneOf("w a s d x x"), {});
            for (const Finding& finding : found) {
                ASSERT_TRUE(board.Pools[Kind::Gem1Type][finding.Line].Visible) << seed;
            }
        }
    }
    EXPECT_GT(givenUp, 50U);
}

} // namespace

} // namespace tumbledeep
