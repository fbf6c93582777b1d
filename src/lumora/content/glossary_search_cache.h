// The search indexes of the open content root's glossaries, each made at its glossary's first
// text search and kept until the content root opens or closes, or the glossary is resorted, so
// that the searches after it cost their words rather than the glossary's size.
#pragma once

#include <lumora/lexicon/glossary_search_index.h>

#include <memory>

namespace lumora {

// The index of `glossary`, made now when there is none or the glossary was loaded again since.
// The caller holds the library lock, shared or alone.
std::shared_ptr<const GlossarySearchIndex> SearchIndexOf(const CGloV6& glossary);

// Drops every index; the caller holds the library lock alone.
void ForgetSearchIndexes();
// Drops the index of `glossary`, whose records changed in place: its next search makes another.
// Searches under way keep the index they started with.
void ForgetSearchIndexOf(const CGloV6& glossary);

}  // namespace lumora
