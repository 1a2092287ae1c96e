export function commandTune () {}
