// Map lists: names that lead nowhere, and whether the list of a folder leads to a map.
#include "map/check/Checks.h"

#include "base/Text.h"
#include "formats/MapList.h"
#include "formats/NearMiss.h"
#include "host/HostPaths.h"

#include <algorithm>
#include <unordered_map>

namespace tumbledeep {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Extension = ".TBM";

std::string FileOf(const std::string& name) { return name + std::string(Extension); }

bool IsThere(const fs::path& path) {
    std::error_code error;
    return !path.empty() && fs::is_regular_file(FindFile(path), error);
}

/// The name in that folder that a name looks like; "" when there is none.
std::string NearestMap(const fs::path& folder, const std::string& name) {
    std::vector<std::string> maps;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder.empty() ? "." : folder, error)) {
        if (HasExtension(entry.path(), Extension)) maps.push_back(entry.path().stem().string());
    }
    const std::vector<std::string_view> names(maps.begin(), maps.end());
    return std::string(NearMiss(name, names));
}

Finding BlankFinding(int line, bool isLast) {
    if (isLast) {
        return Warning(line,
                       {"after the last map the blank line is taken for a map named \".TBM\""},
                       {"take the line away"});
    }
    return Error(line, {"the blank line is taken for a map named \".TBM\""},
                 {"take the line away"});
}

/// What is wrong with a name that has a text and is not there as it stands.
std::optional<Finding> NameFinding(const fs::path& folder, const Record& record) {
    const std::string& name = record.Text;
    if (name.ends_with(' ')) {
        return Error(record.Line, {"the name ends in a blank, and no map is found under it"},
                     {"take the blank away"});
    }
    if (HasExtension(name, Extension)) {
        return Error(record.Line,
                     {"the game does not go on from a name with an extension, ", Quoted(name)},
                     {"take the extension away"});
    }
    const fs::path file = folder / HostPath(FileOf(name));
    if (!IsThere(file)) {
        if (IsThere(folder / HostPath(name + ".txt"))) {
            return Error(record.Line, {"there is only a text picture of ", Quoted(name)},
                         {"make the map of it by from-picture"});
        }
        const std::string meant = NearestMap(folder, name);
        return Error(record.Line, {"there is no map ", Quoted(FileOf(name)), " beside the list"},
                     {meant.empty() ? "mend the name, or put the map there"
                                    : Joined({"did you mean ", Quoted(meant)})});
    }
    const std::string real = FindFile(file).stem().string();
    if (real == file.stem().string()) return std::nullopt;
    return Warning(record.Line,
                   {"the map's file is \"", real,
                    "\", and when it is opened by that name the game "
                    "does not go on from it"},
                   {"write the name as the file has it"});
}

Finding CommaFinding(int line) {
    return Error(line, {"the comma cuts the name in two"},
                 {"put a name that holds a comma in double quotes, and each name on a line"});
}

Finding TwiceFinding(int line, const std::string& name, int first) {
    return Warning(line,
                   {Quoted(name), " is in line ", std::to_string(first),
                    " already, and the game goes on from there each time"},
                   {"take one of the two away"});
}

} // namespace

Findings CheckList(const fs::path& folder, const std::string& bytes) {
    const std::vector<Record> names = ReadMapList(bytes);
    if (names.empty())
        return {Error(1, {"the list is empty"}, {"write a map's name on each line"})};
    const std::vector<RecordEnd> ends = EndsOf(bytes, names);
    Findings found = CheckQuotes(names, ends);
    std::unordered_map<std::string_view, int> lines; // of names, the first one
    const auto isBlank = [](const Record& record) { return record.Text.empty(); };
    const auto behindLast = std::find_if_not(names.rbegin(), names.rend(), isBlank).base();
    for (auto name = names.begin(); name != names.end(); ++name) {
        const auto index = static_cast<std::size_t>(name - names.begin());
        if (ends[index].ByComma) found.push_back(CommaFinding(name->Line));
        if (index > 0 && ends[index - 1].ByComma) continue;
        if (isBlank(*name)) {
            found.push_back(BlankFinding(name->Line, name >= behindLast));
            continue;
        }
        const auto [first, isNew] = lines.try_emplace(name->Text, name->Line);
        if (!isNew) {
            found.push_back(TwiceFinding(name->Line, name->Text, first->second));
        } else if (!ends[index].ByComma && !ends[index].Open) {
            if (auto finding = NameFinding(folder, *name)) found.push_back(*std::move(finding));
        }
    }
    return found;
}

Findings CheckListed(const fs::path& file) {
    const std::string name = file.stem().string();
    const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
    std::string inOtherCase;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        if (!HasExtension(entry.path(), ".TBL") || !entry.is_regular_file(error)) continue;
        for (const Record& record : ReadMapList(BytesOf(entry.path(), Sources::RegularFiles))) {
            if (record.Text == name) return {};
            if (SameButCase(record.Text, name)) inOtherCase = entry.path().filename().string();
        }
    }
    if (!inOtherCase.empty()) {
        return {Warning(1,
                        {inOtherCase, " names this map in another case, and the game does not "
                                      "go on from it"},
                        {"write ", Quoted(name), " in the list"})};
    }
    return {Warning(1, {"no list beside this map names it, so the game can't go on after a win"},
                    {"write ", Quoted(name), " on a line of Default.TBL beside it"})};
}

} // namespace tumbledeep
