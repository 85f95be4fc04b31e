// Lines of a script, and the comments above them.
#include "map/solve/SolutionText.h"

#include "formats/FieldInput.h"
#include "formats/RecordingHead.h"
#include "map/bots/Replay.h"

#include <filesystem>

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
    RecordingHead head;
    head.Map = std::filesystem::path(map.Name).stem().string() + ".TBM";
    head.Checksum = ChecksumOf(map.IsPicture ? WriteRecords(map.Lines) : map.Bytes);
    head.Seed = 1;
    // A first start asks for the following view; behind a win is asked for the next map.
    std::string text = LinesOf(head) + "answer yes\nanswer text 2\nanswer yes\n";
    for (const ScriptEvent& event : plan.Events) text += LineOf(event);
    return text;
}

} // namespace tumbledeep
