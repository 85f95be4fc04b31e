// How the names of the files are found among the words.
#include "map/FileWords.h"

namespace tumbledeep {

FileWords ReadFileWords(Words words) {
    FileWords files;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "-o") {
            if (++i == words.size() || words[i].empty()) throw CallFault("-o needs a file's name");
            files.Out = words[i];
        } else if (words[i].starts_with("--") || !files.In.empty()) {
            throw CallFault("one word too many: " + std::string(words[i]));
        } else {
            files.In = words[i];
        }
    }
    if (files.In.empty()) throw CallFault("a file's name is missing");
    return files;
}

} // namespace tumbledeep
