#include "engine/game_state.h"

namespace tipline {

Game game;

}  // namespace tipline
