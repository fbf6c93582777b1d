// What remains of the per-thread COM initialisation here: a count of initialisations on the
// calling thread. Opening the library adds one whatever its outcome and closing takes one away,
// so a host that pairs its opens and closes ends where it started; the database layer asks
// whether its thread holds an initialisation.
#pragma once

namespace lumora {

void ComInitialize();
// Takes one initialisation away; a thread without any stays at zero.
void ComUninitialize();
int ComInitializations();

}  // namespace lumora
