// The checks that CheckContentRoot runs, one file each. A check adds to `report.checked` what
// it looked at and a finding for each thing wrong; it never writes into the tree.
#pragma once

#include <lumora/check/checked_root.h>
#include <lumora/check/content_check.h>

namespace lumora {

void CheckConfig(const CheckedRoot& root, CheckReport& report);
void CheckSets(const CheckedRoot& root, CheckReport& report);
void CheckIndexes(const CheckedRoot& root, CheckReport& report);
void CheckResources(const CheckedRoot& root, CheckReport& report);
void CheckMedia(const CheckedRoot& root, CheckReport& report);
void CheckPackages(const CheckedRoot& root, CheckReport& report);
void CheckGlossary(const CheckedRoot& root, CheckReport& report);
void CheckGrammar(const CheckedRoot& root, CheckReport& report);
void CheckClassification(const CheckedRoot& root, CheckReport& report);
void CheckNameCase(const CheckedRoot& root, CheckReport& report);

}  // namespace lumora
