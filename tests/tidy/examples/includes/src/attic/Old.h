// What nobody placed.
#pragma once
