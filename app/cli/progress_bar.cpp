#include "app/cli/progress_bar.h"

#include <unistd.h>

#include <cmath>
#include <iostream>

namespace qb::cli {

namespace {

constexpr int kBarWidth = 20;
constexpr std::chrono::milliseconds kRedrawEvery{100};

// Seconds as "m:ss", or "h:mm:ss" from an hour on.
std::string duration(double seconds) {
  const long total = std::lround(seconds);
  const long hours = total / 3600;
  const long minutes = total / 60 % 60;
  const long rest = total % 60;
  auto two = [](long n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  return hours > 0 ? std::to_string(hours) + ":" + two(minutes) + ":" + two(rest)
                   : std::to_string(minutes) + ":" + two(rest);
}

}  // namespace

ProgressBar::ProgressBar(std::ostream& err, std::string label)
    : ProgressBar(err, std::move(label), &err == &std::cerr && isatty(STDERR_FILENO) == 1) {}

ProgressBar::ProgressBar(std::ostream& out, std::string label, bool draw)
    : out_(out), label_(std::move(label)), draw_(draw) {}

ProgressBar::~ProgressBar() { clear(); }

std::string ProgressBar::line(const std::string& label, size_t done, size_t total) {
  if (total == 0) return label + "  " + std::to_string(done);
  if (done > total) done = total;
  const size_t filled = done * kBarWidth / total;
  const size_t percent = done * 100 / total;
  std::string text =
      label + " [" + std::string(filled, '#') + std::string(kBarWidth - filled, '-') + "] ";
  text += std::string(percent < 10    ? 2
                      : percent < 100 ? 1
                                      : 0,
                      ' ') +
          std::to_string(percent) + "%  " + std::to_string(done) + "/" + std::to_string(total);
  return text;
}

std::string ProgressBar::line(const std::string& label, size_t done, size_t total, double seconds) {
  std::string text = line(label, done, total);
  if (seconds <= 0 || done == 0) return text;
  const double rate = static_cast<double>(done) / seconds;
  // Slow work shows a tenth of a row: "0.3/s" rather than "0/s".
  if (rate < 9.95) {
    const long tenths = std::lround(rate * 10);
    text += "  " + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + "/s";
  } else {
    text += "  " + std::to_string(std::lround(rate)) + "/s";
  }
  if (total > done) text += "  " + duration(static_cast<double>(total - done) / rate) + " left";
  return text;
}

void ProgressBar::update(size_t done, size_t total) {
  if (!draw_) return;
  const auto now = std::chrono::steady_clock::now();
  const bool finished = total > 0 && done >= total;
  if (shown_ && !finished && now - lastDrawn_ < kRedrawEvery) return;
  lastDrawn_ = now;
  const double seconds = std::chrono::duration<double>(now - started_).count();
  // Back to the start of the line and clear it, then the new state.
  out_ << "\r\033[K" << line(label_, done, total, seconds) << std::flush;
  shown_ = true;
}

void ProgressBar::clear() {
  if (!shown_) return;
  out_ << "\r\033[K" << std::flush;
  shown_ = false;
}

}  // namespace qb::cli
