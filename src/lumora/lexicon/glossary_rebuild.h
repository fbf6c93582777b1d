// Rebuilding a glossary's alphabetical order and letter index from its written forms, as an
// export does before it saves a glossary it assembled.
#pragma once

#include <lumora/lexicon/glossary.h>
#include <lumora/platform/write_status.h>

namespace lumora {

// Replaces `sorted` and `letters` and gives every headword (kind 1) the letter section it now
// falls in; other words keep theirs. Only one rebuild runs at a time in the library: a rebuild
// started while another runs (from a Notify handler, say) returns false and changes nothing.
bool rebuildSortAndLetters(CGloV6& g);

// Saves the three tables a rebuild changes (headwords, order, letters) into the glossary's
// folder, together with their checksums or not at all.
WriteStatus SaveSortAndLetters(CGloV6& g);

}  // namespace lumora
