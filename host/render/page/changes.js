// SPDX-License-Identifier: MIT
/** How one slide takes the place of another: plain equivalents of the effects that slides have. */
const Changes = (() => {
  const duration = 500;
  const sides = { left: [-1, 0], right: [1, 0], up: [0, -1], down: [0, 1] };

  /** From where things move that move to a side or a corner, and where they go, in sizes of the window. */
  function direction(to) {
    const parts = (to || 'left').split('-').map((side) => sides[side] || [0, 0]);
    return parts.reduce((sum, part) => [sum[0] + part[0], sum[1] + part[1]], [0, 0]);
  }

  const moved = ([x, y]) => ({ transform: `translate(${x * 100}%, ${y * 100}%)` });
  const here = { transform: 'none' };

  /** Keyframes of the slide that comes and of the one that goes, and which of them is above. */
  const kinds = {
    push: ([x, y]) => ({ coming: [moved([-x, -y]), here], going: [here, moved([x, y])] }),
    cover: ([x, y]) => ({ coming: [moved([-x, -y]), here] }),
    uncover: ([x, y]) => ({ going: [here, moved([x, y])], isGoingAbove: true }),
    fade: () => ({ coming: [{ opacity: 0 }, { opacity: 1 }] }),
    black: () => ({
      coming: [{ opacity: 0 }, { opacity: 0 }, { opacity: 1 }],
      going: [{ opacity: 1 }, { opacity: 0 }, { opacity: 0 }],
    }),
    'box-in': () => ({ going: [{ clipPath: 'inset(0%)' }, { clipPath: 'inset(50%)' }], isGoingAbove: true }),
    'box-out': () => ({ coming: [{ clipPath: 'inset(50%)' }, { clipPath: 'inset(0%)' }] }),
    zoom: () => ({ coming: [{ transform: 'rotate(-180deg) scale(0)' }, { transform: 'none' }] }),
  };

  /** Plays the change to a slide; the one that goes is taken away at the end. */
  function run(coming, going) {
    const told = coming.play.change;
    going.section.classList.remove('shown');
    if (!told || Stage.isCalm() || !document.body.classList.contains('playing')) {
      return;
    }
    const change = (kinds[told.kind] || kinds.fade)(direction(told.to));
    going.section.classList.add('going');
    going.section.classList.toggle('above', Boolean(change.isGoingAbove));
    const plays = [[coming, change.coming], [going, change.going]]
      .filter(([, frames]) => frames)
      .map(([slide, frames]) => slide.section.animate(frames, { duration, easing: 'ease-in-out', fill: 'both' }));
    Promise.allSettled(plays.map((play) => play.finished)).then(() => {
      going.section.classList.remove('going', 'above');
      plays.forEach((play) => play.cancel());
    });
  }

  return { run };
})();
