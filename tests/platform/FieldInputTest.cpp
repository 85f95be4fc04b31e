// Records of field-wise text input.
#include "platform/FieldInput.h"

#include <gmock/gmock.h>

#include <vector>

namespace tumbledeep {

namespace {

TEST(FieldInput, RecordsEndAtCommasAndLineEnds) {
    struct Case {
        std::string Text;
        std::vector<std::string> Records;
    };
    for (const Case& c : std::vector<Case>{{"", {}},
                                           {"\xEF\xBB\xBF", {}},
                                           {"\xEF\xBB\xBF"
                                            "a",
                                            {"a"}},
                                           {"\n", {""}},
                                           {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
                                           {"a\n", {"a"}},
                                           {"a\n\r\nb\r\n", {"a", "", "b"}},
                                           {"  a b  ,  c", {"a b  ", "c"}},
                                           {"\ta", {"\ta"}},
                                           {"a,\nb", {"a", "", "b"}},
                                           {"a,", {"a"}},
                                           {",", {""}},
                                           {"   ", {""}},
                                           {"\"a,b\nc\" junk \"x\",d", {"a,b\nc", "d"}},
                                           {" \"a\"\r\n\"b\"", {"a", "b"}},
                                           {"\"\"\nb", {"", "b"}},
                                           {"\"open\nend,", {"open\nend,"}},
                                           {"say \"hi\"", {"say \"hi\""}}}) {
        FieldInput input(c.Text);
        std::vector<std::string> records;
        while (!input.AtEnd()) records.push_back(input.Next());
        EXPECT_EQ(records, c.Records) << c.Text;
        EXPECT_EQ(input.Next(), "");
    }
}

} // namespace

} // namespace tumbledeep
