// Records of field-wise text input, and the lines and columns at which they stand. What a record
// means is in MapTextTest.cpp.
#include "formats/FieldInput.h"

#include <gmock/gmock.h>

namespace tumbledeep {

TEST(FieldInput, RecordsEndAtCommasAndLineEnds) {
    // Each record as "line:column text".
    using Records = std::vector<std::string>;
    for (const auto& [text, records] : {std::pair<const char*, Records>{"", {}},
                                        {"\xEF\xBB\xBF", {}},
                                        {"\xEF\xBB\xBF a", {"1:2 a"}},
                                        {"\n", {"1:1 "}},
                                        {"a\n", {"1:1 a"}},
                                        {"a\r\nb\nc\rd", {"1:1 a", "2:1 b", "3:1 c", "4:1 d"}},
                                        {"a\n\r\nb\r\n", {"1:1 a", "2:1 ", "3:1 b"}},
                                        {"  a b  ,  c", {"1:3 a b  ", "1:11 c"}},
                                        {"\ta", {"1:1 \ta"}},
                                        {"a,\nb", {"1:1 a", "1:3 ", "2:1 b"}},
                                        {"a,", {"1:1 a"}},
                                        {"   ", {"1:4 "}},
                                        {"\"a,b\nc\" junk \"x\",d", {"1:2 a,b\nc", "2:13 d"}},
                                        {" \"a\"\r\n\"b\"", {"1:3 a", "2:2 b"}},
                                        {"\"open\nend,", {"1:2 open\nend,"}},
                                        {"say \"hi\"", {"1:1 say \"hi\""}}}) {
        FieldInput input(text);
        Records read;
        while (!input.AtEnd()) {
            const Record record = input.Next();
            read.push_back(std::to_string(record.Line) + ":" + std::to_string(record.Column) + " " +
                           record.Text);
        }
        EXPECT_EQ(read, records) << text;
    }
}

} // namespace tumbledeep
