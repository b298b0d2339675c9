#include "ui/line_layout_cache.hpp"

#include <utility>
#include <vector>

namespace kestri {
namespace {

constexpr std::size_t kKept = 400;         // lines, before the far ones are forgotten
constexpr std::int32_t kNeighbours = 100;  // lines above and below that stay

}  // namespace

void LineLayoutCache::SetStyle(const TextStyle& style) {
  lines_.clear();
  style_ = style;
}

LineLayout& LineLayoutCache::Line(std::int32_t line) {
  auto& slot = lines_[line];
  if (!slot) slot = std::make_unique<LineLayout>(control_, style_, line);
  return *slot;
}

bool LineLayoutCache::IsPlain(std::int32_t line) const {
  const auto found = lines_.find(line);
  return found != lines_.end() && found->second->Plain();
}

void LineLayoutCache::TextReplaced(const TextChange& change) {
  ClearInset();
  if (change.linesRemoved == 0 && change.linesInserted == 0) {
    const auto found = lines_.find(change.firstLine);
    if (found == lines_.end()) return;
    found->second->TextReplaced(change.at - control_.LineStart(change.firstLine), change.removed,
                                change.inserted);
    return;
  }
  const std::int32_t shift = change.linesInserted - change.linesRemoved;
  const auto first = lines_.lower_bound(change.firstLine);
  const auto behind = lines_.upper_bound(change.firstLine + change.linesRemoved);
  std::vector<std::unique_ptr<LineLayout>> moved;
  if (shift != 0) {
    for (auto at = behind; at != lines_.end(); ++at) moved.push_back(std::move(at->second));
    lines_.erase(first, lines_.end());
  } else {
    lines_.erase(first, behind);
  }
  for (auto& layout : moved) {
    layout->MoveTo(layout->Line() + shift);
    lines_[layout->Line()] = std::move(layout);
  }
}

void LineLayoutCache::SetInset(Position at, Inset inset) {
  ClearInset();
  insetLine_ = control_.LineOf(at);
  Line(insetLine_).SetInset(at - control_.LineStart(insetLine_), std::move(inset));
}

void LineLayoutCache::ClearInset() {
  const auto found = lines_.find(insetLine_);
  if (found != lines_.end()) found->second->ClearInset();
  insetLine_ = -1;
}

void LineLayoutCache::Trim(std::int32_t firstVisible, std::int32_t lastVisible) {
  if (lines_.size() < kKept) return;
  const auto keep = insetLine_;
  std::erase_if(lines_, [&](const auto& entry) {
    const std::int32_t line = entry.first;
    return line != keep && (line < firstVisible - kNeighbours || line > lastVisible + kNeighbours);
  });
}

}  // namespace kestri
