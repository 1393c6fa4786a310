#pragma once
// ProgressBar: the tool's progress on long work, drawn on standard error when
// it is a terminal and nowhere else, so that output piped into a file or
// another program gets no stray characters. One line, redrawn in place at
// most ten times a second and at the end, cleared when the work is done:
//
//   Filling Custom1 [##########----------]  50%  2500/5000  812/s  0:03 left
//   Walking /srv/archive  12288 files
//
//   ProgressBar bar(context.err, "Filling Custom1");
//   fields.maxPopulateLookupFields = [&](int32_t& n) { total = n; };
//   fields.incPopulateLookupFields = [&](int32_t& n) { bar.update(n, total); };

#include <chrono>
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

namespace qb::cli {

class ProgressBar {
 public:
  // Draws on err when err is standard error and that is a terminal.
  ProgressBar(std::ostream& err, std::string label);
  // Draws on out whatever out is (for tests), or never.
  ProgressBar(std::ostream& out, std::string label, bool draw);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  // done out of total; total 0 when it is not known ahead (a count alone).
  void update(size_t done, size_t total);
  // Clears the line; later updates draw again.
  void clear();
  // update as a callback.
  std::function<void(size_t, size_t)> callback() {
    return [this](size_t done, size_t total) { update(done, total); };
  }

  // The line for done out of total (no carriage return, no clearing).
  static std::string line(const std::string& label, size_t done, size_t total);
  // The same with the rate and the time left, when seconds have passed since
  // the work began: "  812/s  0:03 left".
  static std::string line(const std::string& label, size_t done, size_t total, double seconds);

 private:
  std::ostream& out_;
  std::string label_;
  bool draw_;
  bool shown_ = false;
  std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point lastDrawn_{};
};

}  // namespace qb::cli
