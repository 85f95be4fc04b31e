// tumbledeep: the game in a window. All that it does is in the library, where tests reach it.
#include "desktop/RunGame.h"

int main(int argc, char** argv) { return tumbledeep::RunGame(argc, argv); }
