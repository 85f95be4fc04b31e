// A bar that shows a person at a terminal how far long work has come. In a file or a pipe it shows
// nothing.
#pragma once

#include <mutex>
#include <string>

namespace tumbledeep {

class Progress {
  public:
    /// `subject` stands in front of all that is shown.
    explicit Progress(std::string subject);
    /// Wipes the bar away.
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Shows how much is done, from 0 to 1, and what of. Any thread may call it.
    void Show(double done, const std::string& what);

  private:
    std::string subject;
    bool isShown;
    std::string last;
    std::mutex mutex;
};

} // namespace tumbledeep
