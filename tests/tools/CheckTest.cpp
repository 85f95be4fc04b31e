// What the check of maps and lists finds, and on which of them it has nothing to say. A row of a
// table is a small file and what has to be said of it: all of that, by lines, and no more. "3e no
// gem" is an error in line 3 with these words in it, "3w" a warning.
#include "map/Checks.h"
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

TEST(Check, MapsWithFaults) {
    const TempFolder folder;
    folder.Write("Default.TBL", "m\n");
    const std::string far = " 3600 3600\n"; // dirt does no harm there
    std::string stack;
    for (int i = 0; i < 32767; ++i) stack += "dirt" + far;
    for (const auto& [text, wanted, picture] : {
             // Numbers, words, headings
             Row{"dirt 0 O\ndirt x 0\n",
                 "1e loading stops here with failure 13; write digits|2e 13"},
             Row{"dirt  0 360\n", "1e missing: loading stops here with failure 13; leave one"},
             Row{"dirt 0 360 \n", "1e blank at the end"}, Row{"dirt\n", "1e write the name, Top"},
             Row{"dirt 0\t360\n", "1e place of the tab"}, Row{"\"dirt 0,5 360\"\n", "1e point"},
             Row{"dirt 1e39 0\n", "1e failure 6"}, Row{"movingmineT 0 0 U\n", "1e take \"U\" away"},
             Row{"movingmineL U 0 0\n", "1e heading stands behind"},
             Row{"dirt 3600\n", "1w both Top and Left"}, Row{"dirt 3600 5" + far, "1w Left"},
             Row{"movingmineL 360 1080 u\n",
                 "1w \"u\" is no heading: the mine stands still; write U"},
             Row{"movingmineL 360 1080\n", "1w heading is missing"},
             Row{"movingmineL 360 1080 U \n", "1w hides the heading"},
             Row{"movingmineL 360 1080 U up\n", "1w behind the heading U"},
             Row{"title\n", "1w no text"},
             Row{stack, "2w 32766 objects share one cell|32767e more than the 32766"},
             // Recipes
             Row{"factory 360 1080 gem1type\n", "1e begin with a digit"},
             Row{"factory 360 1080 5gem1type\n", "1e write 5:gem1type"},
             Row{"factory 360 1080 10:dirt\n", "1e more than one digit"},
             Row{"factory 360 1080 1:rock\n", "1e \"roundrock\""},
             Row{"factory 360 1080 1:you\n", "1e player"},
             Row{"factory 360 1080\n", "1e recipe is missing"},
             Row{"factory 360 1080 1:\n", "1e no kind"},
             Row{"factory 360 1080 1:dirt \n", "1e hides the recipe"},
             Row{"factory 360 1080 1:gem1type\n", "1w may not count for the win"},
             // First words
             Row{"Dirt 0 0\nmovingminet 0 0\ngemtype1 0 0\nrock 0 0\ntitel a\n",
                 "1e \"dirt\"|2e \"movingmineT\"|3e \"gem1type\"|4e \"roundrock\"|5e \"title\""},
             Row{"dirt\t0 0\nbang 0 0\nxyzzy 5 5\n", "1e a tab|2e factory|3e lines begin with"},
             Row{"Some prose\nDirt is soft\n", "1w rem|2w rem"},
             // Commas and quotes
             Row{"title Down, down, down\n", "1w \"down\" is lost; put the whole line"},
             Row{"rem a, dirt" + far, "1e a line of its own; put the whole line"},
             Row{"dirt 3600,3600\n", "1e a blank between numbers"},
             Row{"dirt 3600 3600,dirt 3600 3960\n", "1w each object on a line"},
             Row{"\"title a\" b\n", "1w \"b\" behind"},
             Row{"\"title a\ndirt 0 0\"\n", "1w closed in line 2"},
             Row{"\"title a\n", "1e never closed|1e no player|1e no gem"},
             // Places
             Row{"", "1e no player", "####/# *#/####"},
             Row{"You 360 360\n", "1e \"you\"", "####/# *#/####"},
             Row{"you 360 1080\nyou 360 1440\n", "1w line 10 too|2w line 10"},
             Row{"", "1e no gem", "####/#@ #/####"},
             Row{"dirt 360 1085\n", "1w between two cells; the nearest is column 4, row 2"},
             Row{"roundrock 0 108000\ndirt 0 -360\n", "1e outside the board|2w out of sight"},
             // Cells
             Row{"dirt 360 720\n", "10w gem1type shares its cell with the dirt of line 1, and the "
                                   "cell counts as dirt; leave one of them in column 3, row 2"},
             Row{"movingminePP 360 1080 U\nfactory 360 1080 1:dirt\nfactory 360 1080 1:dirt\n",
                 "2w 3 objects share one cell, the first in line 1, and the cell is empty"},
             Row{"dirt" + far + "dirt" + far, "2w the same dirt stands in line 1"},
             // Walls
             Row{"", "5e hole in column 2, row 1 (Top 0, Left 360)", "# ##/#@*#/####"},
             Row{"", "7e hole in column 1, row 2", "######/ @*  #/#### #"},
             Row{"", "1e outside the walls", "@*"},
             Row{"", "13w 2 objects, from this one on, stand outside", "####/#@*#/####/OO"},
             // Gems
             Row{"", "9e gem in column 4, row 2 (Top 360, Left 1080)|13e gem in column 3, row 3",
                 "#####/#@#*#/##*##/#####"},
             Row{"", "9e no play can get the gem", "#####/#@O*#/#####"}, // the rock can't be pushed
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
             Row{"\"title Down, down\"\nrem a, b\n# c\n- d\n\n   \nREM e\ndirt 3600  3600\n", ""},
             Row{"factory 360 720 1:gem1type\nfactory 360 1080 9;bang\ndirt 3.6e3 +3600,\n", ""},
             Row{"harddirt 360 720\n", "10w cell counts as harddirt"},
             Row{"", "", "######/#@O *#/######"},
             Row{"", "", "#####/#*  #/#O  #/##..#/##@##/#####"},
             Row{"factory 360 720 1:bang\n", "", "#####/#@O*#/#####"},
             Row{"", "", "######/#@O*##/##T###/######"},
             Row{"", "", " ####/##@*##/######"}, // a corner is missing
         }) {
        const std::string bytes = "\xEF\xBB\xBF" + Map(text, picture);
        folder.Write("m, n.TBM", bytes);
        Expect(folder.Path / "m, n.TBM", bytes, wanted);
    }
}

TEST(Check, Lists) {
    const TempFolder folder;
    for (const char* map : {"a.TBM", "b, c.TBM", "d.tbm"}) folder.Write(map, "");
    for (const auto& [text, wanted, unused] : {
             Row{"a\n\"b, c\"\nd", ""},
             Row{"", "1e empty"},
             Row{"a\n\nd\n\n", "2e blank line|4w after the last map"},
             Row{"x\nA\na.TBM\na \n", "1e no map|2w file is \"a\"|3e extension|4e ends in a blank"},
             Row{"a\nd\na\n", "3w in line 1"},
             Row{"b, c\n\"a\" x\n\"d\n", "1e comma|2w \"x\" behind|3e never closed"},
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

/// The pools' indexes of the gems that the check has given up.
std::vector<int> GivenUp(const std::string& text) {
    const MapSource source{"m.TBM", false, text, ReadRecords(text)};
    const CheckedMap map = ReadChecked(source);
    std::vector<int> gems;
    const Findings found = CheckReach(map);
    int gem = 0;
    for (const MapObject& object : map.Objects) {
        if (object.Which != Kind::Gem1Type) continue;
        ++gem;
        if (std::ranges::count(found, object.Line, &Finding::Line) > 0) gems.push_back(gem);
    }
    return gems;
}

TEST(Check, NobodyGetsAGemThatIsGivenUp) {
    std::size_t givenUp = 0;
    for (std::uint32_t seed = 0; seed < 150; ++seed) {
        Dice dice(seed);
        const std::string_view kinds = dice.Once(3) ? "# # # . * O T ^" : "# # # # . * O O";
        std::string picture = "#######/";
        for (int cell = 0; cell < 25; ++cell) {
            picture += cell % 5 == 0 ? "#" : "";
            picture += cell == 12 ? "@" : dice.OneOf(kinds);
            picture += cell % 5 == 4 ? "#/" : "";
        }
        const std::string text = Map("", picture + "#######");
        const std::vector<int> gems = GivenUp(text);
        givenUp += gems.size();
        Board board = LoadMap(text, seed);
        for (int i = 0; i < 2000 && board.Period(dice.OneOf("w a s d p p"), {}) == Outcome::Running;
             ++i) {
            for (const int gem : gems) {
                ASSERT_TRUE(board.Pools[Kind::Gem1Type][gem].Visible) << seed << ' ' << picture;
            }
        }
    }
    EXPECT_GT(givenUp, 50U);
}

} // namespace

} // namespace tumbledeep
