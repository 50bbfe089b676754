#include "app/launch.h"
#include "first_paint.h"
#include "platform/application.h"
#include "platform/head_start.h"
#include "platform/log.h"

/// The program itself, watched.
int main(int argc, char** argv) {
    Log::install();
    HeadStart headStart;
    Application application(argc, argv);
    headStart.finish();
    const FirstPaint firstPaint(QCoreApplication::arguments());
    return launch(application);
}
