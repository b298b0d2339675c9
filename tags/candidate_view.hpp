// The window of the candidate popup as its logic sees it.
#pragma once

#include <string_view>
#include <vector>

#include "tags/candidate_list.hpp"
#include "tags/show_at_caret.hpp"

namespace kestri {

class CandidateView : public ToolWindow {
 public:
  // The rows belong to the caller and stay as they are until the next SetRows.
  virtual void SetRows(const std::vector<CandidateRow>& rows) = 0;
  virtual void SetListVisible(bool visible) = 0;  // off while rows change their looks
  virtual void MarkMode(std::int32_t mode) = 0;   // rows of other modes are ghosted
  virtual void Select(int row) = 0;               // scrolls as little as needed; -1: none
  virtual void SelectAtTop(int row) = 0;          // the row stands at the top of the view
  virtual int RowsPerPage() = 0;
  virtual void ShowTip(std::u16string_view text, const CandidateIcon* icon) = 0;  // its own status bar
  virtual bool Visible() = 0;
  virtual void Hide(Animation animation, Opens opened) = 0;  // folds back to where it came from
};

}  // namespace kestri
