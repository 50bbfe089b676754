#include "platform/head_start.h"

// The system keeps its fonts ready by itself.
HeadStart::HeadStart(const std::function<void()>& /*preparation*/) {}

HeadStart::~HeadStart() = default;

void HeadStart::run(const std::function<void()>& /*preparation*/) {}

void HeadStart::applicationIsThere() {}

void HeadStart::finish() {}
