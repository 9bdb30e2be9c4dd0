#pragma once
#include "data/Connection.h"

/// Stores of older versions are carried forward by numbered steps; a store knows the number of its last one.
namespace SchemaSteps {

/// The number that a store of this version has.
int current();
/// The number of a store; -1 when it can't be read.
int of(Connection &store);
/// Runs the steps that the store has not had yet, all or none of them.
Result carryForward(Connection &store);

} // namespace SchemaSteps
