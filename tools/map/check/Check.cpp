// The command that tells every doubt about maps and lists: a line of output for each, as compilers
// write theirs. What is doubtful is told in Checks.h.
#include "map/Commands.h"
#include "map/check/Checks.h"

#include <algorithm>
#include <iostream>
#include <span>

namespace tumbledeep {

namespace {

constexpr int WarningStatus = 1;
constexpr int ErrorStatus = 2;

int PrintFindings(const std::string& name, const Findings& findings) {
    int status = 0;
    for (const Finding& finding : findings) {
        const bool isError = finding.Weight == Severity::Error;
        std::cout << name << ':' << finding.Line << (isError ? ": error: " : ": warning: ")
                  << finding.Text << "; " << finding.Hint << '\n';
        status = std::max(status, isError ? ErrorStatus : WarningStatus);
    }
    return status;
}

/// The text of a fault begins with the file's name, and goes on with ": " or with the line.
void PrintFault(const std::string& name, std::string_view fault) {
    const std::size_t colon = fault.find(": ", fault.starts_with(name) ? name.size() : 0);
    const std::size_t place = colon == std::string_view::npos ? 0 : colon + 2;
    std::cout << fault.substr(0, place) << "error: " << fault.substr(place) << '\n';
}

int CheckOne(const std::string& name) {
    try {
        return PrintFindings(name, CheckFile(name));
    } catch (const std::runtime_error& fault) {
        PrintFault(name, fault.what());
        return ErrorStatus;
    }
}

} // namespace

int Check(Words words) {
    if (words.empty()) throw CallFault("a file is missing");
    int status = 0;
    for (const std::string_view name : words)
        status = std::max(status, CheckOne(std::string(name)));
    return status;
}

} // namespace tumbledeep
