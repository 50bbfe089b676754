#include "platform/head_start.h"

// The system keeps its fonts ready by itself.
HeadStart::HeadStart() = default;

void HeadStart::finish() {}
