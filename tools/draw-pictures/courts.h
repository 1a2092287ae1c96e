// The figures of the court cards. Each function appends one upper half, see heads.h.
#pragma once

#include <string>

namespace pictures {

void KingOfSpades(std::string& out);
void QueenOfSpades(std::string& out);
void JackOfSpades(std::string& out);
void KingOfHearts(std::string& out);
void QueenOfHearts(std::string& out);
void JackOfHearts(std::string& out);
void KingOfClubs(std::string& out);
void QueenOfClubs(std::string& out);
void JackOfClubs(std::string& out);
void KingOfDiamonds(std::string& out);
void QueenOfDiamonds(std::string& out);
void JackOfDiamonds(std::string& out);

}  // namespace pictures
