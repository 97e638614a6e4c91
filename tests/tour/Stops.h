#pragma once

class Tour;

// One stop of the tour for each page, in the order in which main() visits them.

void visitWelcome(Tour &tour);
void visitZip(Tour &tour);
