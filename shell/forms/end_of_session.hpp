// What a desktop that ends the session is answered.
#pragma once

namespace kestri {

// mayClose asks for an unsaved document: where the user wants to stay, so does the session. Session: as
// QSessionManager.
template <typename Session, typename MayClose>
void AnswerEndOfSession(Session& session, const MayClose& mayClose) {
  if (!session.allowsInteraction()) return;
  if (!mayClose()) session.cancel();
  session.release();
}

}  // namespace kestri
