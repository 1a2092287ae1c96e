// Players who know the games: what a good player does next, and why.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "suite/game_window.h"

// What is clicked on, one after the other, and a comment for who looks on; "" for none.
struct Advice {
  std::vector<const Control*> clicks;
  std::string comment;
  std::string kind;  // comments of one kind teach the same
};

class GoodPlayer {
 public:
  virtual ~GoodPlayer() = default;
  // While a round is played.
  virtual Advice Next(GameWindow& window) = 0;
};

// Of the game that is called so: "Sumfall".
std::unique_ptr<GoodPlayer> PlayerOf(const std::string& game);
