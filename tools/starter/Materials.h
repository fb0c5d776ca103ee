// The drawings of the starter library, folder by folder. Each is the same square of bytes at every run.
#pragma once

#include "tools/starter/Tile.h"

namespace mirelle::starter {

Tile MarbledPaper();
Tile BrushDabs();

Tile JuliaKaleidoscope();
Tile ElectricVeil();

Tile SprayLoops();
Tile PaintSplatter();

Tile BrushedSteel();
Tile TreadPlate();

Tile GlazedMosaic();
Tile SerapeStripes();

Tile DawnFade();
Tile DeepWater();

Tile LeafCells();
Tile GiraffeHide();

Tile BrickWall();
Tile ParquetSquares();
Tile Cobblestones();

Tile HazardStripes();
Tile RustyPanels();

Tile Burlap();
Tile Terrazzo();

} // namespace mirelle::starter
