// SPDX-License-Identifier: MIT
#include "image/DecodeLimits.h"

namespace tint {

namespace {

DecodeLimits limitsInForce;

} // namespace

DecodeLimits GetDecodeLimits() {
    return limitsInForce;
}

void SetDecodeLimits(const DecodeLimits& limits) {
    limitsInForce = limits;
}

} // namespace tint
