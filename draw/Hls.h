// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

/// @file
/// The colour model from which the skin derives its palette.
///
/// A colour is a COLORREF (0x00BBGGRR).  A packed HLS value holds three bytes:
///
/// | bits  | meaning    | scale                          |
/// |-------|------------|--------------------------------|
/// | 0-7   | hue        | 0-255 stands for 0-360 degrees |
/// | 8-15  | luminance  | 0-255 stands for 0.0-1.0       |
/// | 16-23 | saturation | 0-255 stands for 0.0-1.0       |
/// | 24-31 | zero       |                                |
///
/// All arithmetic is single precision and every conversion to an integer truncates, so a round trip
/// may lose one step per channel; the derived colours are the same on every machine.

/// Converts a colour to packed HLS.  The top byte of `color` is ignored.
///
/// The double-hexcone model: luminance is the mean of the largest and the smallest channel, hue 0 is
/// red.  Pure red has the hue byte 255 (360 degrees) rather than 0: both mean the same hue.
DWORD RGBToHLS(COLORREF color);

/// Converts packed HLS to a colour.  A saturation of 0 gives the grey of the luminance byte,
/// whatever the hue.  The top byte of `hls` is ignored.
COLORREF HLSToRGB(DWORD hls);

/// One channel of the HLS to RGB conversion.
/// @param m1   smallest channel, 0.0-1.0
/// @param m2   largest channel, 0.0-1.0
/// @param hue  hue of the channel in degrees, -120 to 480: that of the colour for green, 120 more
///             for red, 120 less for blue
/// @return the channel, 0-255
int HueToComponent(float m1, float m2, float hue);

/// Makes a colour lighter or darker, stronger or greyer; the hue stays.
/// @param color       the colour to start from
/// @param luminance   percent: positive moves the luminance that far towards white, negative that far
///                    towards black
/// @param saturation  percent: positive moves the saturation that far towards the pure colour,
///                    negative that far towards grey
/// @return the colour; with both percentages 0 still the round trip through HLS, which may differ by
///         one step a channel from `color`
COLORREF AdjustColorLS(COLORREF color, int luminance, int saturation);
