#include <fontconfig/fontconfig.h>

#include "platform/head_start.h"

HeadStart::HeadStart() : fonts_(std::async(std::launch::async, [] { FcInit(); })) {}

void HeadStart::finish() {
    fonts_.wait();
}
