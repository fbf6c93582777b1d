// What every object of an open content root shares: the root itself. Disciplines, resource
// handles and views keep it alive, so that a script may drop them in any order; once the root is
// closed, each of them raises lumora.Error.
#pragma once

#include <lumora/content.h>

#include <memory>
#include <string>

#include "errors.h"

namespace lumora::python {

struct RootState {
  std::unique_ptr<ContentRoot> root;

  // The root, or lumora.Error when it is closed.
  const ContentRoot& Live() const {
    if (!root->open()) RaiseClosed();
    return *root;
  }
  // The document of an answer, or the exception that says why there is none.
  const Description& Document(const Answer& answer) const {
    if (!answer.ok()) Raise(answer.status, !root->open());
    return answer.document;
  }
};

using SharedRoot = std::shared_ptr<const RootState>;

}  // namespace lumora::python
