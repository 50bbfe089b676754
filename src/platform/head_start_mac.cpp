#include "platform/head_start.h"

// The system keeps its fonts ready by itself.
class HeadStart::Work final {};

HeadStart::HeadStart(const std::function<void()>& /*preparation*/) {}

HeadStart::~HeadStart() = default;

void HeadStart::applicationIsThere() {}

void HeadStart::finish() {}
