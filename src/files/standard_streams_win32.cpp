#include "files/standard_streams.h"

namespace zel {

void fillStandardStreams() {}

}  // namespace zel
