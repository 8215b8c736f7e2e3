// Included, but in no list.
#pragma once
