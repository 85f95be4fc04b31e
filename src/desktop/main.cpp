// tumbledeep: the game in a window. All that it does is in RunGame.h and the library behind that,
// where tests reach it.
#include "desktop/RunGame.h"

int main(int argc, char** argv) { return tumbledeep::RunGame(argc, argv); }
