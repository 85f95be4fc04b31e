// tumbledeep-sheet: writes the catalogue, as a sheet or as the map editor's tiles, or the icon
// alone to a PNG file. Only the command line is read here; the images are Sheet.h's, Tiles.h's and
// Image.h's.
#include "Sheet.h"
#include "Tiles.h"

#include <charconv>
#include <exception>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace tumbledeep {

namespace {

constexpr int Failed = 2;
constexpr int LargestScale = 64;
constexpr int LargestIcon = 1024;
constexpr std::string_view Usage = "usage: tumbledeep-sheet [--scale N] FILE.png\n"
                                   "       tumbledeep-sheet --icon [--size N] FILE.png\n"
                                   "       tumbledeep-sheet --tiles FILE.png\n";

struct Call {
    bool Help = false;
    bool Icon = false;
    bool Tiles = false;
    int Scale = 1;
    int Size = 256;
    std::string File;
};

std::optional<int> NumberUpTo(std::string_view text, int largest) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc{} && end == text.data() + text.size();
    return whole && number >= 1 && number <= largest ? std::optional(number) : std::nullopt;
}

/// None for a wrong call.
std::optional<Call> Parse(std::span<char* const> arguments) {
    Call call;
    bool scaled = false;
    bool sized = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view word = arguments[i];
        const std::string_view next = i + 1 < arguments.size() ? arguments[i + 1] : "";
        if (word == "--help" || word == "-h") {
            call.Help = true;
            return call;
        }
        if (word == "--icon") {
            call.Icon = true;
        } else if (word == "--tiles") {
            call.Tiles = true;
        } else if (word == "--scale" || word == "--size") {
            const bool scale = word == "--scale";
            const auto number = NumberUpTo(next, scale ? LargestScale : LargestIcon);
            if (!number) return std::nullopt;
            (scale ? call.Scale : call.Size) = *number;
            (scale ? scaled : sized) = true;
            ++i;
        } else if (word.empty() || word.starts_with('-') || !call.File.empty()) {
            return std::nullopt;
        } else {
            call.File = word;
        }
    }
    const bool mixed = call.Tiles ? call.Icon || scaled || sized : call.Icon ? scaled : sized;
    return mixed || call.File.empty() ? std::nullopt : std::optional(call);
}

int Run(std::span<char* const> arguments) {
    const std::optional<Call> call = Parse(arguments);
    if (!call) {
        std::cerr << "tumbledeep-sheet: wrong call; --help tells how\n";
        return Failed;
    }
    if (call->Help) {
        std::cout << Usage;
        return 0;
    }
    WritePng(call->Tiles  ? DrawTiles()
             : call->Icon ? IconImage(call->Size)
                          : Enlarged(DrawSheet(), call->Scale),
             call->File);
    return 0;
}

} // namespace

} // namespace tumbledeep

int main(int count, char** arguments) {
    try {
        return tumbledeep::Run(std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
    } catch (const std::exception& error) {
        std::cerr << "tumbledeep-sheet: " << error.what() << '\n';
        return tumbledeep::Failed;
    }
}
