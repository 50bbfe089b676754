#include "app/launch.h"
#include "first_paint.h"
#include "platform/application.h"
#include "platform/head_start.h"
#include "platform/log.h"

/// The program itself, watched.
int main(int argc, char** argv) {
    Log::install();
    HeadStart headStart(&prepareAhead);
    chooseStyle();
    Application application(argc, argv);
    headStart.applicationIsThere();
    const FirstPaint firstPaint(QCoreApplication::arguments());
    const int status = launch(application);
    headStart.finish();
    return status;
}
