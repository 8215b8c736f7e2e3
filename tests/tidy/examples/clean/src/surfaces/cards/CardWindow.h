// The card as a window.
#pragma once
