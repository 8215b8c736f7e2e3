// A header in a folder without a layer.
#pragma once
