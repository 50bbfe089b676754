#pragma once

#include <stdexcept>

/// An index outside a collection.
class RangeException final : public std::out_of_range {
public:
    using std::out_of_range::out_of_range;
};

/// A collection was changed while it was being walked.
class CollectionMutatedException final : public std::logic_error {
public:
    using std::logic_error::logic_error;
};
