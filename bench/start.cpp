#include "app/launch.h"
#include "first_paint.h"

namespace {

void watch() {
    [[maybe_unused]] static const FirstPaint firstPaint;
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)

/// The program itself, with FirstPaint in it.
int main(int argc, char** argv) {
    return launch(argc, argv);
}
