#include "app/cli/progress_bar.h"

#include <unistd.h>

#include <iostream>

namespace qb::cli {

namespace {

constexpr int kBarWidth = 20;
constexpr std::chrono::milliseconds kRedrawEvery{100};

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

void ProgressBar::update(size_t done, size_t total) {
  if (!draw_) return;
  const auto now = std::chrono::steady_clock::now();
  const bool finished = total > 0 && done >= total;
  if (shown_ && !finished && now - lastDrawn_ < kRedrawEvery) return;
  lastDrawn_ = now;
  // Back to the start of the line and clear it, then the new state.
  out_ << "\r\033[K" << line(label_, done, total) << std::flush;
  shown_ = true;
}

void ProgressBar::clear() {
  if (!shown_) return;
  out_ << "\r\033[K" << std::flush;
  shown_ = false;
}

}  // namespace qb::cli
