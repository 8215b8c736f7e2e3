#pragma once

// Too late.
