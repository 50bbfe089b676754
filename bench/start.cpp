#include "app/launch.h"
#include "first_paint.h"
#include "platform/application.h"
#include "platform/log.h"

/// The program itself, watched.
int main(int argc, char** argv) {
    Log::install();
    Application application(argc, argv);
    const FirstPaint firstPaint(QCoreApplication::arguments());
    return launch(application);
}
