// Lines of a script, and the comments above them.
#include "map/solve/SolutionText.h"

#include "map/bots/Replay.h"

namespace tumbledeep {

Script PlanOf(Script before, std::string_view keys, int beat) {
    std::int64_t step = LastStep(before) + RestBeforePlan(before);
    for (const char key : keys) {
        if (key != ' ') {
            PlayerAct act;
            act.What = PlayerAct::Do::Type;
            act.Text = key;
            before.Events.push_back({step + 1, act, 0});
        }
        step += beat;
    }
    return before;
}

std::string SolutionText(const MapSource& map, const Script& plan) {
    std::string text = "# map " + map.Name + "\nanswer yes\nanswer text 2\nanswer yes\n";
    for (const ScriptEvent& event : plan.Events) {
        text += "at " + std::to_string(event.Step) + " ";
        text += event.Act.What == PlayerAct::Do::Type ? "type " + event.Act.Text : "click";
        text += '\n';
    }
    return text;
}

} // namespace tumbledeep
