// How the program treats its memory.
#pragma once

namespace vanzer {

/// What a command gives back is kept for the next one: to ask the system for it anew, page by page, costs a tenth of
/// the calculation of a long trip. At most 64 MB are kept. Does nothing on systems that know no such choice.
void tieneLaMemoria();

} // namespace vanzer
