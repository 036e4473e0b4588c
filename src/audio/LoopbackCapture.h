#pragma once

#include "AudioCapture.h"

#include <memory>

// The capture of what this machine plays, for the music effect: PulseAudio's default monitor
// source on Linux (PipeWire serves it too), miniaudio's loopback device on Windows when the
// build found miniaudio.h, and otherwise a capture that keeps silence. Not started yet.
std::unique_ptr<AudioCapture> createLoopbackCapture();
