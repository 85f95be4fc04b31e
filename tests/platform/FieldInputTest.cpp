// Records of field-wise text input.
#include "platform/FieldInput.h"

#include <gmock/gmock.h>

#include <vector>

namespace tumbledeep {

TEST(FieldInput, RecordsEndAtCommasAndLineEnds) {
    using Records = std::vector<std::string>;
    for (const auto& [text, records] : {std::pair<const char*, Records>{"", {}},
                                        {"\xEF\xBB\xBF", {}},
                                        {"\xEF\xBB\xBF"
                                         "a",
                                         {"a"}},
                                        {"\n", {""}},
                                        {"a\n", {"a"}},
                                        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
                                        {"a\n\r\nb\r\n", {"a", "", "b"}},
                                        {"  a b  ,  c", {"a b  ", "c"}},
                                        {"\ta", {"\ta"}},
                                        {"a,\nb", {"a", "", "b"}},
                                        {"a,", {"a"}},
                                        {"   ", {""}},
                                        {"\"a,b\nc\" junk \"x\",d", {"a,b\nc", "d"}},
                                        {" \"a\"\r\n\"b\"", {"a", "b"}},
                                        {"\"open\nend,", {"open\nend,"}},
                                        {"say \"hi\"", {"say \"hi\""}}}) {
        FieldInput input(text);
        Records read;
        while (!input.AtEnd()) read.push_back(input.Next());
        EXPECT_EQ(read, records) << text;
    }
}

} // namespace tumbledeep
