#include "app/launch.h"
#include "platform/application.h"
#include "platform/head_start.h"
#include "platform/log.h"

int main(int argc, char** argv) {
    Log::install();
    HeadStart headStart(&prepareAhead);
    chooseStyle();
    Application application(argc, argv);
    headStart.applicationIsThere();
    const int status = launch(application);
    headStart.finish();
    return status;
}
