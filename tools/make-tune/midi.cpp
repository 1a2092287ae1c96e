#include "midi.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <tuple>

namespace make_tune {
namespace {

void PutBig(std::string& bytes, std::uint32_t number, int size) {
  for (int i = size - 1; i >= 0; --i) bytes.push_back(static_cast<char>(number >> (8 * i) & 0xff));
}

void PutDelta(std::string& bytes, std::uint32_t number) {
  for (int shift = 21; shift > 0; shift -= 7)
    if (number >> shift != 0) bytes.push_back(static_cast<char>((number >> shift & 0x7f) | 0x80));
  bytes.push_back(static_cast<char>(number & 0x7f));
}

std::string Meta(int type, const std::string& content) {
  std::string bytes = {static_cast<char>(0xff), static_cast<char>(type)};
  PutDelta(bytes, static_cast<std::uint32_t>(content.size()));
  return bytes + content;
}

std::string Message(int status, int channel, int first, int second) {
  return {static_cast<char>(status | (channel - 1)), static_cast<char>(first), static_cast<char>(second)};
}

struct Event {
  int at = 0;
  int order = 0;  // at one time: settings, then ends of notes, then beginnings
  std::string bytes;
};

std::string Chunk(std::vector<Event> events, int end) {
  std::stable_sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
    return std::tie(a.at, a.order) < std::tie(b.at, b.order);
  });
  std::string body;
  int now = 0;
  for (const Event& event : events) {
    PutDelta(body, static_cast<std::uint32_t>(event.at - now));
    body += event.bytes;
    now = event.at;
  }
  PutDelta(body, static_cast<std::uint32_t>(std::max(0, end - now)));
  body += Meta(0x2f, "");
  std::string chunk = "MTrk";
  PutBig(chunk, static_cast<std::uint32_t>(body.size()), 4);
  return chunk + body;
}

std::string TempoTrack(const Tune& tune) {
  std::vector<Event> events;
  events.push_back({0, 0, Meta(0x03, tune.title)});
  events.push_back({0, 0, Meta(0x58, std::string("\x04\x02\x18\x08", 4))});
  for (const TempoChange& change : tune.tempos) {
    std::string micros;
    PutBig(micros, static_cast<std::uint32_t>(std::lround(60e6 / change.tempo)), 3);
    events.push_back({change.at, 1, Meta(0x51, micros)});
  }
  return Chunk(std::move(events), tune.end);
}

std::string PartTrack(const Track& track, int end) {
  const Part& part = track.part;
  std::vector<Event> events;
  events.push_back({0, 0, Meta(0x03, part.name)});
  events.push_back({0, 0, Message(0xb0, part.channel, 121, 0)});
  events.push_back(
      {0, 0, {static_cast<char>(0xc0 | (part.channel - 1)), static_cast<char>(part.program - 1)}});
  const std::pair<int, int> settings[] = {{7, part.volume}, {10, part.pan}, {91, part.reverb}};
  for (const auto& [controller, value] : settings)
    events.push_back({0, 0, Message(0xb0, part.channel, controller, value)});
  for (std::size_t i = 0; i < track.notes.size(); ++i) {
    const Sounding& note = track.notes[i];
    int to = note.to;
    // A key that is struck again has to come up first.
    for (std::size_t j = i + 1; j < track.notes.size() && track.notes[j].from < to; ++j)
      if (track.notes[j].pitch == note.pitch) to = std::max(note.from + 1, track.notes[j].from - 4);
    events.push_back({note.from, 2, Message(0x90, part.channel, note.pitch, note.velocity)});
    events.push_back({to, 1, Message(0x80, part.channel, note.pitch, 64)});
  }
  return Chunk(std::move(events), end);
}

}  // namespace

std::string MidiFile(const Tune& tune) {
  std::string bytes = "MThd";
  PutBig(bytes, 6, 4);
  PutBig(bytes, 1, 2);
  PutBig(bytes, static_cast<std::uint32_t>(tune.tracks.size() + 1), 2);
  PutBig(bytes, kTicksPerBeat, 2);
  bytes += TempoTrack(tune);
  for (const Track& track : tune.tracks) bytes += PartTrack(track, tune.end);
  return bytes;
}

}  // namespace make_tune
