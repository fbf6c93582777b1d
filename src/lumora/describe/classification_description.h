// The description of the classification tables: what `lumora classification --json` prints.
//
//   {"folder", "t_FamSem", "t_CatGram", "t_GrammarPoint_Category", "t_Verb_Tense",
//    "t_Expression_SyntacticFunction"}
//
// each table a list of {"id", "label", "value"}; the grammatical categories also give "labels",
// the label of each interface language that has one, by language code.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/lexicon/classification.h>

namespace lumora {

Description DescribeClassification(const Classification& classification);

}  // namespace lumora
