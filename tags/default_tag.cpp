#include "tags/default_tag.hpp"

#include "tags/dictionaries.hpp"
#include "tags/tag_locator.hpp"

namespace kestri {

void CompleteDefaultTag(MainText& text, const ClassCommon& common, MainTextHost& host) {
  if (text.RefuseIfLocked()) return;
  const auto fail = [&](std::u16string_view message) {
    common.PortSet().window.Beep();
    host.MessageToStatusBar(message);
  };
  std::u16string inside;
  if (!FindCaretSpan(text.Control(), kSelectSpan, inside, u"<", u">", Compare::Binary)) {
    return fail(u"ﾀｸﾞが取得できません");
  }
  const auto row = Dictionaries(common).FindTag(TagNameOf(inside, Compare::Binary));
  if (!row || row->defTag.empty()) return fail(u"ﾀｸﾞのﾃﾞﾌｫﾙﾄﾊﾟﾗﾒｰﾀが見つかりませんでした");
  const std::u16string defTag = ClassCommon::StringSurround(row->defTag, ClassCommon::Surround::Remove, u"<",
                                                            u">", Compare::Binary, true);
  if (defTag == text.Control().SelText()) return;
  EditScope oneStep(text.Control());
  text.ReplaceSelKeep(defTag, true, true);
}

}  // namespace kestri
