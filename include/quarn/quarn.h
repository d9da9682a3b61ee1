#pragma once

/// The whole public interface of the library.

#include "quarn/AmbientConditions.h"
#include "quarn/BoundaryConditions.h"
#include "quarn/BoundingBoxSide.h"
#include "quarn/DFTParameters.h"
#include "quarn/DelimManager.h"
#include "quarn/Engine.h"
#include "quarn/PlaneWave.h"
#include "quarn/ProjectFile.h"
#include "quarn/TdAfsTerminationCriteria.h"
#include "quarn/TerminationCriteria.h"
#include "quarn/Version.h"
#include "quarn/Waveform.h"
#include "quarn/v6ProjectFile.h"
