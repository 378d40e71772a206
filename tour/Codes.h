#pragma once

class Tour;

/// Two customers walk in and get their access codes: one pays before, with a photo, a discount, a receipt and a label,
/// the other after.
void tourCodes(Tour &tour);
