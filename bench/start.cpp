#include <optional>

#include <QCoreApplication>

#include "app/launch.h"
#include "first_paint.h"

/// The program itself, watched.
int main(int argc, char** argv) {
    std::optional<FirstPaint> firstPaint;
    return launch(argc, argv, [&] { firstPaint.emplace(QCoreApplication::arguments()); });
}
