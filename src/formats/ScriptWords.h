// The words of a script's lines, for reading and writing them.
#pragma once

#include "formats/Script.h"

#include <array>

namespace tumbledeep {

/// The keys by name, in the order of Heading.
inline constexpr std::array<std::string_view, 4> KeyNames{"Up", "Down", "Left", "Right"};

/// A word that says what a player does.
struct VerbWord {
    std::string_view Word;
    PlayerAct::Do What;
};

/// In the order of PlayerAct::Do.
inline constexpr std::array<VerbWord, 9> VerbWords{{{"type", PlayerAct::Do::Type},
                                                    {"press", PlayerAct::Do::Press},
                                                    {"release", PlayerAct::Do::Release},
                                                    {"click", PlayerAct::Do::Click},
                                                    {"drag", PlayerAct::Do::Drag},
                                                    {"gotfocus", PlayerAct::Do::GotFocus},
                                                    {"lostfocus", PlayerAct::Do::LostFocus},
                                                    {"menu", PlayerAct::Do::Menu},
                                                    {"resize", PlayerAct::Do::Resize}}};

/// A word that says what a dialog is answered.
struct AnswerWord {
    std::string_view Word;
    ScriptAnswer::To What;
    bool TakesText;
};
inline constexpr std::array<AnswerWord, 5> AnswerWords{{{"yes", ScriptAnswer::To::Yes, false},
                                                        {"no", ScriptAnswer::To::No, false},
                                                        {"cancel", ScriptAnswer::To::Cancel, false},
                                                        {"text", ScriptAnswer::To::Text, true},
                                                        {"file", ScriptAnswer::To::File, true}}};

} // namespace tumbledeep
