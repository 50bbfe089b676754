#pragma once

#include <string>

#include "places.h"

/// A boolean at the top of a channel of Xfce's settings. Asked of the settings daemon when that
/// runs, since it keeps changes to itself for some seconds; otherwise read from its file.
class XfconfPlace final : public Place {
public:
    XfconfPlace(std::string channel, std::string property);

    State state() const override;
    void turnOff() override;

private:
    State stateInFiles() const;

    std::string channel_;
    std::string property_;
};
