#include "app/launch.h"
#include "platform/application.h"
#include "platform/log.h"

int main(int argc, char** argv) {
    Log::install();
    Application application(argc, argv);
    return launch(application);
}
