// The icons of the candidate kinds, drawn so that they are crisp at every scale.
#pragma once

#include <QRectF>

#include "tags/candidate_list.hpp"

class QPainter;

namespace kestri {

inline constexpr int kCandidateIconSize = 16;  // logical pixels

void PaintCandidateIcon(QPainter& painter, const QRectF& place, CandidateIcon icon);

}  // namespace kestri
