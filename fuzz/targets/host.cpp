// The host's files under the program's paths, in a folder of the target's own. The fields of the
// input: a path, by which nothing is opened; a file's name; its bytes; a name to look for; a value
// that is written into it as settings.
#include "Fields.h"
#include "Sandbox.h"
#include "Target.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "formats/Profile.h"
#include "formats/ProgramPath.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "host/SettingsFile.h"

#include <algorithm>

namespace tumbledeep {

namespace {

namespace fs = std::filesystem;

void LawsOfPaths(const std::string& path) {
    const fs::path host = HostPath(path);
    Hold(HostPath(path) == host.lexically_normal(), "a host path is a plain one");
    if (host.empty()) return;
    const std::string back = ProgramPath(host);
    Hold(HasDrive(back) && ProgramPath(HostPath(back)) == back,
         "a program path goes there and back");
}

bool IsPlainName(const std::string& name) {
    return !name.empty() && name.size() < 100 && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\\:\0", 4)) == std::string::npos;
}

} // namespace

void Fuzz(std::string_view bytes) {
    static const Sandbox sandbox;
    LawsOfPaths(TakeField(bytes));
    const std::string name = TakeField(bytes);
    const std::string content = TakeField(bytes);
    const std::string wanted = TakeField(bytes);
    const std::string value = TakeField(bytes);
    if (!IsPlainName(name) || !IsPlainName(wanted)) return;

    sandbox.Clear();
    const fs::path file = sandbox.Path / name;
    Hold(ReplaceFile(file, content) && ReadFile(file) == content, "a file is written whole");
    const std::string path = ProgramPath(sandbox.Path) + "\\" + wanted;
    const bool same = SameButCase(name, wanted);
    try {
        Hold(ReadFile(FindFile(HostPath(path))) == content && same, "a file is found by its name");
    } catch (const Failure& failure) {
        Hold(failure.Number == Failure::FileNotFound && !same,
             "a file that is not there isn't found");
    }
    Hold(WriteProfile("Level", "LOAD", value, path), "a setting is written");
    Hold(ReadProfile("Level", "LOAD", path) == value.substr(0, value.find_first_of("\r\n")),
         "a setting reads back");
    Hold(same ? ReadFile(file) == ProfileWith(content, "Level", "LOAD", value)
              : ReadFile(file) == content,
         "a setting is written into its own file");
    Hold(std::distance(fs::directory_iterator(sandbox.Path), {}) == (same ? 1 : 2),
         "nothing is left behind");
}

} // namespace tumbledeep
