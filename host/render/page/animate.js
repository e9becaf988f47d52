// SPDX-License-Identifier: MIT
/** What moves on a slide: its steps in their order, and those that items start when they are clicked. */
const Animate = (() => {
  const duration = 600;

  /** Slats of a blind that are open by a part from 0 to 1, as a shape to clip with. */
  function blinds(part) {
    const count = 6;
    const points = [];
    for (let i = 0; i < count; ++i) {
      const top = (i / count) * 100;
      const bottom = top + (part / count) * 100;
      points.push(`0% ${top}%`, `100% ${top}%`, `100% ${bottom}%`, `0% ${bottom}%`, `0% ${top}%`);
    }
    return `polygon(${points.join(', ')})`;
  }

  /** From where an item isn't to be seen to where it is, by the name of the effect. */
  const frames = {
    fade: () => [{ opacity: 0 }, { opacity: 1 }],
    fly: (element) => {
      const box = element.getBBox();
      return [{ transform: `translate(${-(box.x + box.width)}px, 0px)` }, { transform: 'translate(0px, 0px)' }];
    },
    wipe: () => [{ clipPath: 'inset(0% 100% 0% 0%)' }, { clipPath: 'inset(0% 0% 0% 0%)' }],
    blinds: () => [{ clipPath: blinds(0) }, { clipPath: blinds(1) }],
    circle: () => [{ clipPath: 'circle(0% at 50% 50%)' }, { clipPath: 'circle(80% at 50% 50%)' }],
    zoom: (element, scale) => [{ transform: 'scale(0)' }, { transform: `scale(${scale})` }],
  };

  /** Plays the steps of one slide. */
  class Player {
    constructor(slide) {
      this.slide = slide;
      this.steps = slide.play.steps || [];
      this.triggers = new Map(Object.entries(slide.play.triggers || {}));
      this.hiddenFirst = slide.drawn.filter((element) => element.getAttribute('display') === 'none');
      this.enterFirst = this.itemsThatEnter();
      this.running = new Set();
      this.run = 0;
      this.triggers.forEach((steps, id) => this.listen(steps, id));
      this.hiddenFirst.forEach((element) => show(element, true)); // while its parts are measured
    }

    /** Elements whose first step brings them in. One that starts that itself has to be seen. */
    itemsThatEnter() {
      const seen = new Set();
      const result = [];
      const look = (step, trigger) => {
        this.slide.withCovers(step.item).filter((element) => !seen.has(element)).forEach((element) => {
          seen.add(element);
          if (step.kind === 'enter' && !this.slide.elements(trigger).includes(element)) {
            result.push(element);
          }
        });
      };
      this.steps.filter((step) => step.kind).forEach((step) => look(step, null));
      this.triggers.forEach((steps, id) => steps.filter((step) => step.kind).forEach((step) => look(step, id)));
      return result;
    }

    listen(steps, id) {
      let next = 0;
      this.onReset = [...(this.onReset || []), () => { next = 0; }];
      this.slide.elements(id).forEach((element) => {
        Stage.enliven(element, 'button');
        Stage.onActivate(element, () => {
          const end = groupEnd(steps, next);
          this.play(steps.slice(next, end));
          next = end < steps.length ? end : 0;
        });
      });
    }

    /** As the slide is before anything has moved. */
    reset() {
      this.stop();
      this.next = 0;
      (this.onReset || []).forEach((action) => action());
      this.slide.drawn.forEach((element) => {
        const isHidden = this.hiddenFirst.includes(element) || this.enterFirst.includes(element);
        show(element, !isHidden);
        element.classList.remove('scaled', 'growing');
        element.style.removeProperty('--scale');
      });
    }

    stop() {
      ++this.run;
      this.running.forEach((animation) => animation.cancel());
      this.running.clear();
    }

    /** The slide is there: plays what waits for no click. */
    begin() {
      this.reset();
      const end = this.steps.findIndex((step) => step.start === 'click');
      this.next = end < 0 ? this.steps.length : end;
      this.play(this.steps.slice(0, this.next));
    }

    /** Plays up to the next click. False if there is nothing more. */
    advance() {
      if (this.next >= this.steps.length) {
        return false;
      }
      const end = groupEnd(this.steps, this.next);
      const group = this.steps.slice(this.next, end);
      this.next = end;
      this.play(group);
      return true;
    }

    /** As the slide is when everything has moved. */
    finish() {
      this.reset();
      this.steps.filter((step) => step.kind).forEach((step) => this.settle(step));
      this.next = this.steps.length;
    }

    async play(steps) {
      // What still runs comes to its end at once.
      [...this.running].filter((animation) => animation.effect.getTiming().iterations !== Infinity)
        .forEach((animation) => animation.finish());
      const run = this.run;
      let together = [];
      for (const step of steps) {
        if (step.start === 'after') {
          await Promise.allSettled(together);
          together = [];
        }
        if (run !== this.run) {
          return;
        }
        if (step.link) {
          Links.follow(step.link);
        } else {
          together.push(...this.start(step));
        }
      }
    }

    /** Leaves items as a step leaves them. */
    settle(step) {
      this.slide.withCovers(step.item).forEach((element) => {
        if (step.kind !== 'emphasis') {
          show(element, step.kind === 'enter');
        }
        if (step.scale && step.kind === 'enter') {
          element.classList.add('scaled');
          element.style.setProperty('--scale', step.scale);
        }
      });
    }

    /** Promises that are kept when the step has been played once. */
    start(step) {
      const isCalm = Stage.isCalm();
      const elements = this.slide.withCovers(step.item);
      if (isCalm) {
        this.settle(step);
        return [];
      }
      return elements.map((element) => {
        show(element, true);
        const options = { duration, easing: 'ease-out', fill: 'backwards' };
        let keyframes = (frames[step.effect] || frames.fade)(element, step.scale || 1);
        if (step.kind === 'exit') {
          keyframes = [...keyframes].reverse();
          options.fill = 'both';
        } else if (step.kind === 'emphasis') {
          keyframes = [{ opacity: 1 }, { opacity: 0.15 }, { opacity: 1 }];
        }
        if (step.loop) {
          options.iterations = Infinity;
          options.direction = 'alternate';
        }
        element.classList.toggle('growing', step.effect === 'zoom');
        const animation = element.animate(keyframes, options);
        this.running.add(animation);
        const done = () => {
          this.running.delete(animation);
          element.classList.remove('growing');
          this.settle(step);
          animation.cancel();
        };
        if (step.loop) {
          return new Promise((kept) => { setTimeout(kept, duration); });
        }
        return animation.finished.then(done, () => {});
      });
    }
  }

  function show(element, isShown) {
    if (isShown) {
      element.removeAttribute('display');
    } else {
      element.setAttribute('display', 'none');
    }
    (element.companions || []).forEach((companion) => { companion.hidden = !isShown; });
  }

  /** Where the steps end that one click plays. */
  function groupEnd(steps, from) {
    let end = from + 1;
    while (end < steps.length && steps[end].start !== 'click') {
      ++end;
    }
    return end;
  }

  const players = new Map();

  /** The player of a slide, made when it is first wanted. */
  function player(slide) {
    if (!players.has(slide)) {
      players.set(slide, new Player(slide));
    }
    return players.get(slide);
  }

  return { player };
})();
