#pragma once

class Tour;

// One stop of the tour for each page, in the order in which main() visits them.

void visitWelcome(Tour &tour);
void visitZip(Tour &tour); ///< Leaves a folder and its archive among the samples.
void visitUnzip(Tour &tour);
void visitImages(Tour &tour);
void visitVideo(Tour &tour);
void visitSpeech(Tour &tour);
void visitUserCache(Tour &tour);
void visitUpdate(Tour &tour);
void visitAbout(Tour &tour);
void visitRecords(Tour &tour);
